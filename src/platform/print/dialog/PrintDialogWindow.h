// The toolkit's print dialog, held to what the program prints by.
//
// It shows no settings that would be lost with the dialog: single pages, odd and even pages, order, colour, margins,
// what the queue makes of a job. It opens on the printer and the paper that were asked for, where the toolkit's own
// takes the usual ones.
#pragma once

#include <QPrintDialog>

namespace orvane
{

class PrintDialogWindow : public QPrintDialog
{
public:
    // The printer's name as the dialog lists it, and the paper size by the published numbers.
    PrintDialogWindow(QPrinter *printer, QWidget *owner, const QString &listedName, int paperSize);
    ~PrintDialogWindow() override;

    // The user's choice, or else the paper that the dialog was opened with.
    int paperSize() const;

protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void propertiesShown(const QDialog &properties);

    QString m_listedName;
    int m_paperSize;
    bool m_paperChosen = false;
};

} // namespace orvane
