#include "platform/print/preview/PageSetupDialog.h"

#include "platform/controls/Twips.h"
#include "platform/print/Printers.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLocale>
#include <QPageSize>
#include <QRadioButton>
#include <array>

namespace orvane
{

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr double TwipsPerMillimetre = TwipsPerInch / 25.4;
constexpr double LeastRoom = TwipsPerInch; // between two margins

// What printers in offices take; a paper that is none of them is offered while it is the one in use. Only papers that
// have a number: the toolkit's B5 and its Executive of 7.5 inches have none.
constexpr std::array Papers{QPageSize::A3,
                            QPageSize::A4,
                            QPageSize::A5,
                            QPageSize::JisB5,
                            QPageSize::Letter,
                            QPageSize::Legal,
                            QPageSize::ExecutiveStandard,
                            QPageSize::Tabloid};

bool inInches()
{
    return QLocale::system().measurementSystem() != QLocale::MetricSystem;
}

double twipsPerUnit()
{
    return inInches() ? TwipsPerInch : TwipsPerMillimetre;
}
} // namespace

PageSetupDialog::PageSetupDialog(const PageChoice &choice, QWidget *parent) : QDialog(parent), m_choice(choice)
{
    setObjectName(u"dlgPageSetup"_s);
    setWindowTitle(choice.withPrinters ? u"Printer Setup"_s : u"Page Setup"_s);
    auto *form = new QFormLayout(this);
    form->setSizeConstraint(QLayout::SetFixedSize);
    if (choice.withPrinters) addPrinters(*form);
    addPapers(*form);
    addOrientation(*form);
    if (!choice.withPrinters) addMargins(*form);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
}

void PageSetupDialog::addPrinters(QFormLayout &form)
{
    m_printers = new QComboBox;
    m_printers->setObjectName(u"cboPrinter"_s);
    for (const InstalledPrinter &printer : installedPrinters())
        m_printers->addItem(printer.deviceName);
    m_printers->setCurrentText(m_choice.deviceName);
    form.addRow(u"P&rinter:"_s, m_printers);
}

void PageSetupDialog::addPapers(QFormLayout &form)
{
    m_papers = new QComboBox;
    m_papers->setObjectName(u"cboPaper"_s);
    for (const QPageSize::PageSizeId paper : Papers)
        m_papers->addItem(QPageSize::name(paper), QPageSize::windowsId(paper));
    if (m_papers->findData(m_choice.setup.paperSize) < 0)
        m_papers->addItem(QPageSize::name(QPageSize::id(m_choice.setup.paperSize)), m_choice.setup.paperSize);
    m_papers->setCurrentIndex(m_papers->findData(m_choice.setup.paperSize));
    form.addRow(u"&Size:"_s, m_papers);
    connect(m_papers, &QComboBox::currentIndexChanged, this, &PageSetupDialog::limitMargins);
}

void PageSetupDialog::addOrientation(QFormLayout &form)
{
    auto *portrait = new QRadioButton(u"P&ortrait"_s);
    m_landscape = new QRadioButton(u"L&andscape"_s);
    portrait->setObjectName(u"optPortrait"_s);
    m_landscape->setObjectName(u"optLandscape"_s);
    (m_choice.setup.landscape ? m_landscape : portrait)->setChecked(true);
    auto *row = new QHBoxLayout;
    row->addWidget(portrait);
    row->addWidget(m_landscape);
    form.addRow(u"Orientation:"_s, row);
    connect(m_landscape, &QRadioButton::toggled, this, &PageSetupDialog::limitMargins);
}

void PageSetupDialog::addMargins(QFormLayout &form)
{
    addMargin(form, u"&Left margin:"_s, u"numLeft"_s, &PageSetup::left);
    addMargin(form, u"&Top margin:"_s, u"numTop"_s, &PageSetup::top);
    addMargin(form, u"Ri&ght margin:"_s, u"numRight"_s, &PageSetup::right);
    addMargin(form, u"&Bottom margin:"_s, u"numBottom"_s, &PageSetup::bottom);
    limitMargins();
}

void PageSetupDialog::addMargin(QFormLayout &form, const QString &label, const QString &name, double PageSetup::*length)
{
    const double value = m_choice.setup.*length / twipsPerUnit();
    auto *box = new QDoubleSpinBox;
    box->setObjectName(name);
    box->setDecimals(inInches() ? 2 : 1);
    box->setSingleStep(inInches() ? 0.1 : 1);
    box->setSuffix(inInches() ? u" in"_s : u" mm"_s);
    box->setMaximum(value);
    box->setValue(value);
    form.addRow(label, box);
    m_margins.push_back({box, length, box->value()});
}

// Each margin leaves room beside the same margin opposite.
void PageSetupDialog::limitMargins()
{
    const QSizeF room = (choice().setup.page() - QSizeF(LeastRoom, LeastRoom)) / 2 / twipsPerUnit();
    for (const Margin &margin : m_margins) {
        const bool atSide = margin.length == &PageSetup::left || margin.length == &PageSetup::right;
        margin.box->setMaximum(atSide ? room.width() : room.height());
    }
}

PageChoice PageSetupDialog::choice() const
{
    PageChoice choice = m_choice;
    choice.setup.paperSize = m_papers->currentData().toInt();
    choice.setup.landscape = m_landscape->isChecked();
    if (m_printers) choice.deviceName = m_printers->currentText();
    for (const Margin &margin : m_margins)
        if (margin.box->value() != margin.shown) choice.setup.*margin.length = margin.box->value() * twipsPerUnit();
    return choice;
}

bool showPageSetupDialog(PageChoice &choice)
{
    PageSetupDialog dialog(choice, QApplication::activeWindow());
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.setWindowFlag(Qt::WindowStaysOnTopHint); // the tour's console stays on top too
    if (dialog.exec() != QDialog::Accepted) return false;
    choice = dialog.choice();
    return true;
}

} // namespace orvane
