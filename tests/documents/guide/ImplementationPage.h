// The Implementation view as a user has it on screen, and what its pane shows.
#pragma once

#include "documents/guide/GuideWindow.h"
#include "documents/pages/Advice.h"

#include "platform/richtext/Rtf.h"

#include <QTextDocument>

namespace orvane::test
{

inline constexpr int Actions = 7;

inline QString keyWord(int action)
{
    static const QStringList words{QStringLiteral("Assign"),   QStringLiteral("Write"),   QStringLiteral("Design"),
                                   QStringLiteral("Identify"), QStringLiteral("Prepare"), QStringLiteral("Document"),
                                   QStringLiteral("Test")};
    return words.at(action - 1);
}

inline QString adviceText(int action)
{
    QTextDocument document;
    readRtf(pages::advice(action), document);
    return document.toPlainText();
}

struct ImplementationPage : GuideWindow {
    ImplementationPage() { press(QStringLiteral("Implementation")); }

    int end() const { return page().document()->characterCount() - 1; }
    QString title() const { return guide->ssPanel.Caption(); }

    // Which action the pane shows, by title and text: 0 for none of them.
    int shown() const
    {
        for (int action = 1; action <= Actions; ++action)
            if (title() == keyWord(action) && guide->rtfTips.Text() == adviceText(action)) return action;
        return 0;
    }

    // As a mouse button released over the page with the caret here.
    void releaseAt(int caret, int button = 1) const
    {
        guide->rtfData.setSelStart(caret);
        guide->rtfData_MouseUp(button, 0, 0, 0);
    }
};

} // namespace orvane::test
