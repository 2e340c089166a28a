// Documents that name files, pictures, objects and places: nothing of it is opened. The files are there, and the
// kernel tells when somebody opens one.
#include "faults/FolderWatch.h"
#include "platform/text/RichBoxFixture.h"
#include "support/RunningSystem.h"

#include <optional>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
// A folder with a file of each kind, which is watched from when they are there.
class Bait
{
public:
    Bait()
    {
        QImage picture(4, 4, QImage::Format_RGB32);
        picture.fill(Qt::red);
        picture.save(path(u"bait.png"_s));
        for (const QString &name : {u"bait.rtf"_s, u"bait.ttf"_s, u"bait.ole"_s}) {
            QFile file(path(name));
            if (file.open(QIODevice::WriteOnly)) file.write("bait");
        }
        m_watch.emplace(m_folder.path());
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }
    QStringList taken() const { return m_watch->opened(); }

private:
    QTemporaryDir m_folder;
    std::optional<FolderWatch> m_watch;
};

// The place of a file as a document of each kind writes it.
QStringList waysToName(const QString &path)
{
    return {path, u"file://"_s + path, QString(path).replace(u'/', u"\\\\"_s), u"\\\\\\\\localhost"_s + path};
}
} // namespace

class tst_DocumentsLoadNothing : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_bait.emplace(); }
    void cleanup() { m_bait.reset(); }
    void theBaitIsWatched();
    void aPlainBoxOfTheToolkitTakesIt();
    void aRichTextOpensNothing_data();
    void aRichTextOpensNothing();
    void aPastedPageOpensNothing_data();
    void aPastedPageOpensNothing();
    void aStepOfTheTourOpensNothing();

private:
    std::optional<Bait> m_bait;
};

void tst_DocumentsLoadNothing::theBaitIsWatched()
{
    QCOMPARE(m_bait->taken(), QStringList());
    QVERIFY(!QImage(m_bait->path(u"bait.png"_s)).isNull());
    QVERIFY(!m_bait->taken().isEmpty());
}

// So what the program's own boxes leave alone could be had.
void tst_DocumentsLoadNothing::aPlainBoxOfTheToolkitTakesIt()
{
    QTextEdit box;
    box.setHtml(u"<img src=\"file://%1\">"_s.arg(m_bait->path(u"bait.png"_s)));
    QVERIFY(!box.grab().isNull());
    QVERIFY(!m_bait->taken().isEmpty());
}

void tst_DocumentsLoadNothing::aRichTextOpensNothing_data()
{
    QTest::addColumn<QString>("body"); // %1: the file
    QTest::addColumn<QString>("file");
    const QString field = uR"({\field{\*\fldinst %1 "%2"}{\fldrslt words}})"_s;
    for (const QString &kind :
         {u"INCLUDEPICTURE"_s, u"INCLUDETEXT"_s, u"HYPERLINK"_s, u"IMPORT"_s, u"LINK"_s, u"DDEAUTO"_s, u"RD"_s})
        QTest::newRow(qPrintable(kind)) << QString(field).replace(u"%1"_s, kind).replace(u"%2"_s, u"%1"_s)
                                        << u"bait.png"_s;
    QTest::newRow("linked object") << uR"({\object\objlink\objautlink{\*\objclass Package}{\*\objname %1}words})"_s
                                   << u"bait.ole"_s;
    QTest::newRow("picture by name") << uR"({\pict\pngblip{\*\blipuid %1}%1})"_s << u"bait.png"_s;
    QTest::newRow("template") << uR"({\*\template %1}words)"_s << u"bait.rtf"_s;
    QTest::newRow("file table") << uR"({\*\filetbl{\file\fid0 %1}}words)"_s << u"bait.rtf"_s;
    QTest::newRow("embedded font") << uR"({\fonttbl{\f0{\*\fontemb{\*\fontfile %1}}Bait;}}\f0 words)"_s
                                   << u"bait.ttf"_s;
    QTest::newRow("sub-document") << uR"({\*\nextfile %1}{\*\userprops %1}words)"_s << u"bait.rtf"_s;
    QTest::newRow("hypertext in it") << uR"(<img src="%1"><link rel="stylesheet" href="%1">)"_s << u"bait.png"_s;
}

void tst_DocumentsLoadNothing::aRichTextOpensNothing()
{
    QFETCH(const QString, body);
    QFETCH(const QString, file);
    RichBoxWindow window;
    window.showForKeys();
    for (const QString &way : waysToName(m_bait->path(file))) {
        window.box.setTextRTF(u"{\\rtf1 before "_s + QString(body).replace(u"%1"_s, way) + u" after}"_s);
        QVERIFY(!window.edit().grab().isNull());
        QVERIFY(!window.box.TextRTF().isEmpty());
        QCOMPARE(m_bait->taken(), QStringList());
    }
}

void tst_DocumentsLoadNothing::aPastedPageOpensNothing_data()
{
    QTest::addColumn<QString>("page");
    QTest::newRow("picture") << u"<p>a<img src=\"%1\">b</p>"_s;
    QTest::newRow("style sheet") << u"<link rel=\"stylesheet\" href=\"%1\"><p>words</p>"_s;
    QTest::newRow("imported style") << u"<style>@import url(\"%1\");</style><p>words</p>"_s;
    QTest::newRow("background") << u"<body background=\"%1\"><p style=\"background-image:url(%1)\">words</p>"_s;
    QTest::newRow("bullet") << u"<ul style=\"list-style-image:url(%1)\"><li>words</ul>"_s;
    QTest::newRow("object") << u"<object data=\"%1\"></object><iframe src=\"%1\"></iframe><embed src=\"%1\">words"_s;
    QTest::newRow("table") << u"<table background=\"%1\"><tr><td background=\"%1\">words</td></tr></table>"_s;
}

void tst_DocumentsLoadNothing::aPastedPageOpensNothing()
{
    QFETCH(const QString, page);
    RichBoxWindow window;
    window.showForKeys();
    for (const QString &way : waysToName(m_bait->path(u"bait.png"_s))) {
        fillClipboard({{u"text/html"_s, QString(page).replace(u"%1"_s, way).toUtf8()}});
        window.press(Qt::CTRL | Qt::Key_V);
        QVERIFY(!window.edit().grab().isNull());
        QCOMPARE(m_bait->taken(), QStringList());
    }
    QVERIFY(!window.box.Text().isEmpty());
}

void tst_DocumentsLoadNothing::aStepOfTheTourOpensNothing()
{
    RunningSystem system;
    QByteArray script("[101]\r\nHeader=One\r\nRTF={\\rtf1 words ");
    for (const QString &way : waysToName(m_bait->path(u"bait.png"_s)))
        script += uR"({\field{\*\fldinst INCLUDEPICTURE "%1"}{\fldrslt x}}<img src="%1">)"_s.arg(way).toLatin1();
    system.host.writeFile(u"DemoData.ini"_s, script + "}\r\nNextRTF=(none)\r\nPrevRTF=(none)\r\n");
    system.start();
    QVERIFY(system.console().rtf.Text().startsWith(u"words"));
    QVERIFY(!system.console().shell().grab().isNull());
    QCOMPARE(m_bait->taken(), QStringList());
}

QTEST_MAIN(tst_DocumentsLoadNothing)
#include "tst_DocumentsLoadNothing.moc"
