#include "platform/system/ProfileFile.h"

#include "platform/system/CodePage1252.h"
#include "platform/system/FolderLock.h"
#include "platform/system/ProfileEdit.h"
#include "platform/system/ProfileScan.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

namespace orvane
{

namespace
{

constexpr qint64 PieceSize = 65'536;
constexpr qint64 ToTheEnd = std::numeric_limits<qint64>::max();

// Hands out the next bytes, up to count in all, until the taker wants no more. False where the file can't be read.
template <typename Taker>
bool readPieces(QFile &file, qint64 count, Taker take)
{
    std::array<char, PieceSize> buffer{};
    while (count > 0) {
        const qint64 got = file.read(buffer.data(), std::min(count, PieceSize));
        if (got < 0) return false;
        if (got == 0) return count == ToTheEnd;
        if (!take(QByteArrayView(buffer.data(), got))) return true;
        if (count != ToTheEnd) count -= got;
    }
    return true;
}

// Opening a pipe or a device would wait for bytes that may never come.
bool openForReading(QFile &file)
{
    return QFileInfo(file.fileName()).isFile() && file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

std::optional<ProfilePlace> findPlace(QFile &file, ProfileScan scan)
{
    if (!readPieces(file, ToTheEnd, [&scan](QByteArrayView piece) { return scan.take(piece); })) return std::nullopt;
    return scan.finish();
}

bool copyPieces(QFile &from, qint64 count, QSaveFile &to)
{
    bool written = true;
    const bool read = readPieces(from, count, [&](QByteArrayView piece) {
        written = to.write(piece.data(), piece.size()) == piece.size();
        return written;
    });
    return read && written;
}

} // namespace

QString readProfileString(const QString &section, const QString &key, const QString &defaultValue, int size,
                          const QString &fileName)
{
    const int most = std::max(size, 1) - 1;
    QFile file(fileName);
    if (openForReading(file)) {
        const auto place = findPlace(file, ProfileScan(section, key, most));
        if (place && place->keyFound) return CodePage1252::decode(place->value);
    }
    return defaultValue.left(most);
}

bool writeProfileString(const QString &section, const QString &key, const QString &value, const QString &fileName)
{
    if (!canNameProfileLine(section, key)) return false;
    const FolderLock lock(QFileInfo(fileName).path());
    QFile before(fileName);
    const bool isNew = !before.exists();
    if (!isNew && !openForReading(before)) return false;
    const auto place = isNew ? ProfilePlace() : findPlace(before, ProfileScan(section, key, 0));
    if (!place) return false;

    QSaveFile after(fileName);
    after.setDirectWriteFallback(false);
    if (!after.open(QIODevice::WriteOnly)) return false;
    if (!isNew && !(before.seek(0) && copyPieces(before, place->begin, after))) return false;
    const QByteArray insertion = profileInsertion(*place, section, key, value);
    if (after.write(insertion) != insertion.size()) return false;
    if (!isNew && !(before.seek(place->end) && copyPieces(before, ToTheEnd, after))) return false;
    return after.flush() && after.commit(); // a commit overlooks what its own flush couldn't write
}

} // namespace orvane
