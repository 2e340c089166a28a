// All keywords, and a line that narrows them down.
#pragma once

#include <QUrl>
#include <QWidget>

class QLineEdit;

namespace orvane
{

class HelpLibrary;

class HelpIndexPane : public QWidget
{
    Q_OBJECT

public:
    explicit HelpIndexPane(HelpLibrary &library);

Q_SIGNALS:
    void chosen(const QUrl &page);

private:
    void layOut();

    HelpLibrary &m_library;
    QLineEdit *m_filter;
};

} // namespace orvane
