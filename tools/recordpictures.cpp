// Draws the forms of the records, empty and filled in, and writes them as bitmaps. The build uses it.

#include "records/FormError.h"
#include "records/FormPainter.h"
#include "records/IndexedBitmap.h"
#include "records/TextLines.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTextStream>

using namespace orvane::records;

namespace
{

constexpr int PictureWidth = 760; // pixels

// A line of the list: name, form, numbers of the pages, blank or completed, height in pixels, colors of the palette.
struct PictureEntry {
    QString name;
    QString form;
    std::vector<int> pages; // from 1; each has the same share of the height
    FormPainter::States state = FormPainter::Blank;
    int height = 0;
    int colours = 0;
};

PictureEntry entryOf(const QString &list, const TextLine &line)
{
    constexpr int Fields = 6;
    const QStringList fields = line.text.simplified().split(u' ');
    if (fields.size() != Fields) throw FormError(list, line.number, QStringLiteral("A picture has six fields."));
    PictureEntry entry{fields[0], fields[1], {}, {}, fields[4].toInt(), fields[5].toInt()};
    for (const QString &page : fields[2].split(u','))
        entry.pages.push_back(page.toInt());
    entry.state = fields[3] == QStringLiteral("completed") ? FormPainter::Completed : FormPainter::Blank;
    const bool known = entry.state == FormPainter::Completed || fields[3] == QStringLiteral("blank");
    if (!known || entry.height <= 0 || entry.colours <= 0)
        throw FormError(list, line.number, QStringLiteral("The state, the height or the colors make no sense."));
    return entry;
}

QImage pictureOf(const PictureEntry &entry, const QDir &folder)
{
    const QString form = folder.filePath(entry.form);
    const std::vector<Page> pages = readForm(form);
    QImage picture(PictureWidth, entry.height, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    FormPainter formPainter(painter, form, entry.state);
    const int room = entry.height / static_cast<int>(entry.pages.size());
    int top = 0;
    for (const int number : entry.pages) {
        if (number < 1 || number > static_cast<int>(pages.size()))
            throw FormError(QStringLiteral("%1 has no page %2.").arg(form).arg(number));
        formPainter.draw(pages[static_cast<size_t>(number) - 1], top, room);
        top += room;
    }
    return picture;
}

void writePictures(const QString &list, const QDir &output)
{
    for (const TextLine &line : readLines(list)) {
        const PictureEntry entry = entryOf(list, line);
        QFile file(output.filePath(entry.name + QStringLiteral(".bmp")));
        const QByteArray bitmap = indexedBitmap(pictureOf(entry, QFileInfo(list).dir()), entry.colours);
        if (!file.open(QIODevice::WriteOnly) || file.write(bitmap) != bitmap.size() || !file.flush())
            throw FormError(QStringLiteral("%1: %2").arg(file.fileName(), file.errorString()));
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen"); // a build may have no display
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    QTextStream errors(stderr);
    if (arguments.size() != 3) {
        errors << "Usage: recordpictures LIST FOLDER\n"
                  "Draws the pictures of the list, whose forms lie beside it, and writes them into the folder.\n";
        return 2;
    }
    try {
        writePictures(arguments[1], QDir(arguments[2]));
        return 0;
    } catch (const FormError &error) {
        errors << error.what() << '\n';
        return 1;
    }
}
