#include "platform/print/dialog/PrintDialogWindow.h"

#include "platform/print/Printers.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPageSize>
#include <QPrinter>
#include <QShowEvent>
#include <QTabWidget>
#include <array>

namespace orvane
{

namespace
{
// Settings that would be lost with the dialog.
constexpr std::array LostSettings{"pagesRadioButton", "pagesLineEdit", "pageSetLabel", "pageSetCombo",
                                  "collate",          "reverse",       "outputIcon",   "colorMode"};
constexpr std::array LostProperties{"groupBox", "pagesPerSheetButtonGroup"}; // margins, pages on a sheet

template <std::size_t Count>
void hideParts(const QWidget &window, const std::array<const char *, Count> &names)
{
    for (const char *name : names)
        if (auto *widget = window.findChild<QWidget *>(QLatin1String(name))) widget->hide();
}

// Of the properties of a printer, those of the job at its queue are lost too.
void showPageAlone(QTabWidget &tabs)
{
    for (int index = 0; index < tabs.count(); ++index)
        tabs.setTabVisible(index, tabs.widget(index)->objectName() == QLatin1String("tabPage"));
}

struct SpokenName {
    const char *part;
    const char16_t *name;
};

// Of what the toolkit leaves without one.
constexpr std::array SpokenNames{SpokenName{"fileBrowser", u"Choose the output file"},
                                 SpokenName{"from", u"First page"}, SpokenName{"to", u"Last page"}};
} // namespace

PrintDialogWindow::PrintDialogWindow(QPrinter *printer, QWidget *owner, const QString &listedName, int paperSize)
    : QPrintDialog(printer, owner), m_listedName(listedName), m_paperSize(paperSize)
{
    setWindowFlag(Qt::WindowStaysOnTopHint); // the tour's console stays on top too
    qApp->installEventFilter(this);          // the window of the printer's properties is made when the user asks for it
}

PrintDialogWindow::~PrintDialogWindow()
{
    qApp->removeEventFilter(this);
}

int PrintDialogWindow::paperSize() const
{
    return m_paperChosen ? QPageSize::windowsId(printer()->pageLayout().pageSize().id()) : m_paperSize;
}

void PrintDialogWindow::showEvent(QShowEvent *event)
{
    QPrintDialog::showEvent(event);
    if (event->spontaneous()) return; // back from being minimized, as the user left it
    hideParts(*this, LostSettings);
    for (const SpokenName &spoken : SpokenNames)
        if (auto *widget = findChild<QWidget *>(QLatin1String(spoken.part)))
            widget->setAccessibleName(QString::fromUtf16(spoken.name));
    if (auto *file = findChild<QLineEdit *>(QStringLiteral("filename"))) file->setText(pdfFileName());
    if (auto *printers = findChild<QComboBox *>(QStringLiteral("printers")))
        printers->setCurrentIndex(printers->findText(m_listedName));
}

bool PrintDialogWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show && watched->inherits("QPrintPropertiesDialog"))
        propertiesShown(*static_cast<QDialog *>(watched));
    return QPrintDialog::eventFilter(watched, event);
}

void PrintDialogWindow::propertiesShown(const QDialog &properties)
{
    hideParts(properties, LostProperties);
    if (auto *tabs = properties.findChild<QTabWidget *>(QStringLiteral("tabs"))) showPageAlone(*tabs);
    auto *papers = properties.findChild<QComboBox *>(QStringLiteral("pageSizeCombo"));
    if (!papers || m_paperChosen) return;
    connect(&properties, &QDialog::accepted, this, [this] { m_paperChosen = true; });
    for (int index = 0; index < papers->count(); ++index)
        if (QPageSize::windowsId(papers->itemData(index).value<QPageSize>().id()) == m_paperSize)
            papers->setCurrentIndex(index);
}

} // namespace orvane
