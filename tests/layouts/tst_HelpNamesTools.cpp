// Whatever a bar offers is explained in the help: every caption stands on one of its pages.
#include "BarsByName.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFragment>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::layouts;

class tst_HelpNamesTools : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void theHelpNamesTheTool_data();
    void theHelpNamesTheTool();

private:
    QStringList m_boldWords; // what stands in bold type, which is how the pages write captions
};

namespace
{
QString withoutAccessKey(QString caption)
{
    const QString doubled(1, QChar(1));
    return caption.replace(u"&&"_s, doubled).remove(u'&').replace(doubled, u"&"_s).simplified();
}

QStringList boldWordsOf(const QTextDocument &page)
{
    QStringList words;
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part)
            if (part.fragment().charFormat().fontWeight() >= QFont::Bold) words << part.fragment().text().simplified();
    return words;
}
} // namespace

void tst_HelpNamesTools::initTestCase()
{
    const QDir folder(QStringLiteral(ORVANE_SOURCE_DIR "/data/help"));
    for (const QString &name : folder.entryList({u"*.html"_s}, QDir::Files)) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QTextDocument page;
        page.setHtml(QString::fromUtf8(file.readAll()));
        m_boldWords << boldWordsOf(page);
    }
    QVERIFY(m_boldWords.size() > 100);
}

void tst_HelpNamesTools::theHelpNamesTheTool_data()
{
    QTest::addColumn<QString>("caption");
    for (auto bar = bars().begin(); bar != bars().end(); ++bar)
        forEachTool(bar.value(), [&](const BandRow &band, const ToolRow &tool) {
            QTest::newRow(qPrintable(u"%1 %2 %3"_s.arg(bar.key(), text(band.name), text(tool.name))))
                << withoutAccessKey(text(tool.caption));
        });
}

void tst_HelpNamesTools::theHelpNamesTheTool()
{
    QFETCH(QString, caption);
    QVERIFY2(m_boldWords.contains(caption), qPrintable(caption));
}

QTEST_MAIN(tst_HelpNamesTools)
#include "tst_HelpNamesTools.moc"
