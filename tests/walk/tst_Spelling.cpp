// What stands on the screen is spelled as in America, in the program's own texts and in those that it reads.

#include <QDirIterator>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_Spelling : public QObject
{
    Q_OBJECT

private slots:
    void textsAreSpelledInOneWay_data();
    void textsAreSpelledInOneWay();
};

namespace
{
// The other spellings of words that such texts are likely to use.
const QRegularExpression &otherSpelling()
{
    static const QRegularExpression words(
        QStringLiteral(R"(\b(licences?|defence|offence|centre[ds]?|metres?|litres?|fibres?|grey|programmes?|whilst)"
                       R"(|\w*(behavi|col|fav|harb|hon|lab|neighb|od|vap)our\w*|fulfil|enrol|judgement|cheque)"
                       R"(|(author|emphas|maxim|minim|organ|priorit|real|recogn|special|standard|summar|util))"
                       R"(is(e|ed|es|ing|ation|ations)|analys(e|ed|es|ing)|(cancel|label|model|travel)l(ed|ing))\b)"),
        QRegularExpression::CaseInsensitiveOption);
    return words;
}

// A text has a blank in it; a literal that has none is a name.
QString textsOfSource(const QString &source)
{
    static const QRegularExpression literal(u"\"((?:[^\"\\\\\\n]|\\\\.)*)\""_s);
    QStringList texts;
    for (QStringView line : QStringView(source).split(u'\n')) {
        if (line.trimmed().startsWith(QStringLiteral("//"))) continue;
        auto literals = literal.globalMatch(line);
        while (literals.hasNext())
            if (const QString text = literals.next().captured(1); text.contains(u' ')) texts << text;
    }
    return texts.join(u'\n');
}
} // namespace

void tst_Spelling::textsAreSpelledInOneWay_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QStringList>("files");
    QTest::newRow("the program's texts") << u"src"_s << QStringList{u"*.cpp"_s, u"*.h"_s};
    QTest::newRow("the texts that it reads")
        << u"data"_s << QStringList{u"*.ini"_s, u"*.txt"_s, u"*.svg"_s, u"*.form"_s};
}

void tst_Spelling::textsAreSpelledInOneWay()
{
    QFETCH(QString, folder);
    QFETCH(QStringList, files);
    QDirIterator found(QStringLiteral(ORVANE_SOURCE_DIR "/") + folder, files, QDir::Files,
                       QDirIterator::Subdirectories);
    QVERIFY(found.hasNext());
    QStringList others;
    while (found.hasNext()) {
        QFile file(found.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString content = QString::fromUtf8(file.readAll());
        auto words = otherSpelling().globalMatch(folder == u"src" ? textsOfSource(content) : content);
        while (words.hasNext())
            others << file.fileName() + u": "_s + words.next().captured();
    }
    QCOMPARE(others, QStringList());
}

QTEST_GUILESS_MAIN(tst_Spelling)
#include "tst_Spelling.moc"
