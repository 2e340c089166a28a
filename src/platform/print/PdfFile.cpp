#include "platform/print/PdfFile.h"

#include "platform/system/RunTimeError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>
#include <algorithm>
#include <filesystem>

namespace orvane
{

using namespace Qt::Literals::StringLiterals;

namespace
{
// Nothing that a file system or a shell of any kind takes for something else, and short enough for all of them.
QString fileNameOf(const QString &title)
{
    constexpr qsizetype Longest = 60;
    QString name = title;
    for (QChar &character : name)
        if (!character.isPrint() || u"/\\:*?\"<>|"_s.contains(character)) character = u' ';
    name = name.simplified();
    const auto isEdge = [](QChar character) { return character == u'.' || character == u' '; };
    while (!name.isEmpty() && isEdge(name.front()))
        name.remove(0, 1);
    name.truncate(Longest);
    while (!name.isEmpty() && isEdge(name.back()))
        name.chop(1);
    return name.isEmpty() ? u"Document"_s : name;
}

// The toolkit doesn't tell of a disk that was full.
bool isWhole(const QString &fileName)
{
    constexpr qsizetype EndLength = 16;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) return false;
    file.seek(std::max<qint64>(0, file.size() - EndLength));
    return file.read(EndLength).contains("%%EOF");
}
} // namespace

PdfFile::PdfFile(const QString &folder, const QString &baseName, bool replaces)
    : m_folder(folder), m_baseName(baseName), m_replaces(replaces),
      m_workingName(QDir(folder).filePath(u"."_s + QUuid::createUuid().toString(QUuid::Id128) + u".pdf"_s))
{
}

std::unique_ptr<PdfFile> PdfFile::chosen(const QString &fileName)
{
    const QFileInfo file(fileName);
    return std::unique_ptr<PdfFile>(new PdfFile(file.absolutePath(), file.fileName(), true));
}

std::unique_ptr<PdfFile> PdfFile::named(const QString &folder, const QString &title)
{
    return std::unique_ptr<PdfFile>(new PdfFile(folder, fileNameOf(title), false));
}

PdfFile::~PdfFile()
{
    QFile::remove(m_workingName);
}

void PdfFile::keep()
{
    if (isWhole(m_workingName) && (m_replaces ? moveToPlace() : moveToFreePlace())) return;
    throw RunTimeError(PrinterFailure, u"The file \"%1\" can't be written in %2."_s.arg(m_baseName, m_folder));
}

bool PdfFile::moveToPlace() const
{
    std::error_code failure;
    const auto path = [](const QString &name) { return std::filesystem::path(name.toStdU16String()); };
    std::filesystem::rename(path(m_workingName), path(QDir(m_folder).filePath(m_baseName)), failure);
    return !failure;
}

bool PdfFile::moveToFreePlace() const
{
    constexpr int MostOfOneName = 10000;
    for (int number = 1; number < MostOfOneName; ++number) {
        const QString end = number == 1 ? u".pdf"_s : u" (%1).pdf"_s.arg(number);
        const QString place = QDir(m_folder).filePath(m_baseName + end);
        if (QFile::rename(m_workingName, place)) return true; // which replaces nothing
        if (!QFile::exists(place)) return false;
    }
    return false;
}

} // namespace orvane
