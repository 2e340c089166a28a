// Lets the user choose the paper, its orientation, and either the margins or the printer.
#pragma once

#include "platform/print/pages/PageSetup.h"

#include <QDialog>
#include <vector>

class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QRadioButton;

namespace orvane
{

struct PageChoice {
    bool withPrinters = false; // the printer is chosen, otherwise the margins
    PageSetup setup;
    QString deviceName;
};

class PageSetupDialog : public QDialog
{
    Q_OBJECT

public:
    explicit PageSetupDialog(const PageChoice &choice, QWidget *parent = nullptr);

    PageChoice choice() const;

private:
    struct Margin {
        QDoubleSpinBox *box;
        double PageSetup::*length;
        double shown; // at first: one that the user leaves alone stays exactly what it was
    };

    void addPrinters(QFormLayout &form);
    void addPapers(QFormLayout &form);
    void addOrientation(QFormLayout &form);
    void addMargins(QFormLayout &form);
    void addMargin(QFormLayout &form, const QString &label, const QString &name, double PageSetup::*length);
    void limitMargins();

    PageChoice m_choice;
    QComboBox *m_printers = nullptr;
    QComboBox *m_papers = nullptr;
    QRadioButton *m_landscape = nullptr;
    std::vector<Margin> m_margins;
};

// Modal to the active window. False where the user cancels, and then the choice stays as it was.
bool showPageSetupDialog(PageChoice &choice);

} // namespace orvane
