// Tells what is in rich texts, for comparing them between programs.
//
//   richtextfacts html IN.rtf OUT.html      words, paragraphs, bold, italic, sizes and bullets as plain HTML
//   richtextfacts rewrite IN.rtf OUT.rtf    read, and written again as an Own version is
//   richtextfacts expect TEXT HTML          what a program says in its plain text and in its HTML, as lines
//   richtextfacts compare RTF TEXT HTML     figures of the one against the other: all/amiss of words, paragraphs, bold,
//                                           italic, sizes and bullets
#include "platform/richtext/FactsComparison.h"
#include "platform/richtext/FactsFile.h"
#include "platform/richtext/Rtf.h"

#include <QFile>
#include <QGuiApplication>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

QByteArray bytesOf(const QString &name)
{
    QFile file(name);
    if (!file.open(QFile::ReadOnly)) qFatal("can't read %s", qPrintable(name));
    return file.readAll();
}

void write(const QString &name, const QByteArray &bytes)
{
    QFile file(name);
    if (!file.open(QFile::WriteOnly) || file.write(bytes) != bytes.size()) qFatal("can't write %s", qPrintable(name));
}

Letters lettersOfRtf(const QString &text)
{
    QTextDocument document;
    readRtf(text, document);
    return lettersOf(document);
}

// The toolkit gives a paragraph's rule also to what lies two deep in the paragraph. So the sizes that a sheet of rules
// has are put where they hold, and the sheet goes.
QString withSizesInPlace(QString html)
{
    static const QRegularExpression sheet(u"<style.*</style>"_s, QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression rule(u"\\n\\s*(p|h\\d)\\.western \\{[^}]*font-size: ([0-9.]+)pt"_s);
    const QString rules = sheet.match(html).captured();
    html.remove(sheet);
    for (auto found = rule.globalMatch(rules); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        const QRegularExpression opening(u"(<%1 class=\"western\"[^>]*>)"_s.arg(match.captured(1)));
        html.replace(opening, u"\\1<span style=\"font-size:%1pt\">"_s.arg(match.captured(2)));
    }
    return html;
}

Letters lettersOfHtml(const QString &name)
{
    QTextDocument document;
    document.setHtml(withSizesInPlace(QString::fromUtf8(bytesOf(name))));
    return lettersOf(document);
}

QString runAsHtml(const QString &line)
{
    const Letters look = fromLines(line);
    QString html = line.sliced(line.indexOf(u'|') + 1).toHtmlEscaped();
    if (look.first().italic) html = "<i>"_L1 + html + "</i>"_L1;
    if (look.first().bold) html = "<b>"_L1 + html + "</b>"_L1;
    return u"<span style=\"font-size:%1pt\">%2</span>"_s.arg(look.first().size / 2.0).arg(html);
}

QString asHtml(const Letters &letters)
{
    QString html = u"<!DOCTYPE html><html><head><meta charset=\"utf-8\"/><title>Page</title></head><body>"_s;
    QString open; // the tags that the paragraph under way ends with
    for (const QString &line : toLines(letters).split(u'\n', Qt::SkipEmptyParts)) {
        const bool item = line.startsWith("item"_L1);
        if (!line.startsWith("more"_L1)) {
            html += open == "</li>"_L1 && !item ? u"</li></ul>"_s : open;
            html += item ? open == "</li>"_L1 ? u"<li>"_s : u"<ul><li>"_s : u"<p>"_s;
            open = item ? u"</li>"_s : u"</p>"_s;
        }
        html += runAsHtml(line);
    }
    return html + open + (open == "</li>"_L1 ? "</ul>"_L1 : ""_L1) + "</body></html>\n"_L1;
}

int exportHtml(const QString &from, const QString &to)
{
    write(to, asHtml(lettersOfRtf(QString::fromLatin1(bytesOf(from)))).toUtf8());
    return 0;
}

int rewrite(const QString &from, const QString &to)
{
    QTextDocument document;
    readRtf(QString::fromLatin1(bytesOf(from)), document);
    write(to, writeRtf(document).toLatin1());
    return 0;
}

// Words are parted as in the plain text: HTML may lose a blank between two runs.
int expect(const QString &text, const QString &html)
{
    Letters plain;
    for (const QString &word : wordsOfPlainText(QString::fromUtf8(bytesOf(text))))
        for (qsizetype i = 0; i < word.size(); ++i)
            plain.append({.letter = word.at(i), .startsWord = i == 0});
    Letters letters = lettersOfHtml(html);
    const QList<const Letter *> others = counterparts(letters, plain);
    for (qsizetype i = 0; i < letters.size(); ++i)
        if (others[i]) letters[i].startsWord = others[i]->startsWord;
    std::fputs(toLines(letters).toUtf8().constData(), stdout);
    return 0;
}

int compareFiles(const QString &rtf, const QString &text, const QString &html)
{
    const Figures figures =
        FactsComparison().compare(lettersOfRtf(QString::fromLatin1(bytesOf(rtf))), lettersOfHtml(html),
                                  wordsOfPlainText(QString::fromUtf8(bytesOf(text))));
    for (const auto count :
         {&Figures::words, &Figures::paragraphs, &Figures::bold, &Figures::italic, &Figures::sizes, &Figures::items})
        std::printf("%d/%d ", (figures.*count).all, (figures.*count).amiss);
    std::puts("");
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList words = QGuiApplication::arguments();
    const QString verb = words.value(1);
    if (verb == "html"_L1 && words.size() == 4) return exportHtml(words[2], words[3]);
    if (verb == "rewrite"_L1 && words.size() == 4) return rewrite(words[2], words[3]);
    if (verb == "expect"_L1 && words.size() == 4) return expect(words[2], words[3]);
    if (verb == "compare"_L1 && words.size() == 5) return compareFiles(words[2], words[3], words[4]);
    std::fputs("usage: see the head of bench/richtextfacts.cpp\n", stderr);
    return 2;
}
