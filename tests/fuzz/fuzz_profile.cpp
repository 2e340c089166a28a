// The first three lines of the input are a section, a key and a value; the rest is a profile file. The scan has to find
// what a plain reading line by line finds, in whatever pieces it gets the bytes, and a write has to read back and leave
// everything else as it reads.
#include "platform/system/CodePage1252.h"
#include "platform/system/ProfileEdit.h"
#include "platform/system/ProfileScan.h"

#include <QByteArrayList>
#include <cstdint>
#include <cstdlib>
#include <optional>

using namespace orvane;

namespace
{

constexpr qsizetype Limit = 20;
constexpr qsizetype Whole = 1 << 24;

void check(bool holds)
{
    if (!holds) std::abort();
}

QByteArray trim(QByteArray bytes)
{
    while (!bytes.isEmpty() && TrimmedBytes::isBlank(bytes.front()))
        bytes.remove(0, 1);
    while (!bytes.isEmpty() && TrimmedBytes::isBlank(bytes.back()))
        bytes.chop(1);
    return bytes;
}

QByteArray valueOf(const QByteArray &text)
{
    const QByteArray value = trim(text);
    const bool quoted = value.size() > 1 && value.front() == value.back() && QByteArray("\"'").contains(value.front());
    return quoted ? value.mid(1, value.size() - 2) : value;
}

bool sameName(const QByteArray &a, const QByteArray &b)
{
    return CodePage1252::decode(trim(a)).compare(CodePage1252::decode(trim(b)), Qt::CaseInsensitive) == 0;
}

std::optional<QByteArray> plainReading(const QByteArray &file, const QByteArray &section, const QByteArray &key)
{
    bool inSection = false;
    for (const QByteArray &raw : file.split('\n')) {
        const QByteArray line = trim(raw);
        const qsizetype bracket = line.indexOf(']');
        const qsizetype sign = line.indexOf('=');
        if (line.startsWith('[')) {
            if (bracket < 0) continue;
            if (inSection) return std::nullopt;
            inSection = sameName(line.mid(1, bracket - 1), section);
        } else if (inSection && !line.startsWith(';') && sign >= 0 && sameName(line.left(sign), key)) {
            return valueOf(line.mid(sign + 1));
        }
    }
    return std::nullopt;
}

ProfilePlace scan(const QByteArray &file, const QByteArray &section, const QByteArray &key, qsizetype limit,
                  qsizetype piece)
{
    ProfileScan scan(CodePage1252::decode(section), CodePage1252::decode(key), limit);
    for (qsizetype at = 0; at < file.size(); at += piece)
        if (!scan.take(QByteArrayView(file).sliced(at, std::min(piece, file.size() - at)))) break;
    return scan.finish();
}

void checkReading(const QByteArray &file, const QByteArray &section, const QByteArray &key)
{
    const auto expected = plainReading(file, section, key);
    for (const qsizetype piece : {qsizetype(1), qsizetype(7), file.size() + 1}) {
        const ProfilePlace place = scan(file, section, key, Limit, piece);
        check(place.keyFound == expected.has_value());
        check(place.value == expected.value_or(QByteArray()).left(Limit));
        check(place.begin >= 0 && place.begin <= place.end && place.end <= file.size());
    }
}

void checkWriting(const QByteArray &file, const QByteArray &section, const QByteArray &key, const QByteArray &value)
{
    const QString sectionName = CodePage1252::decode(section);
    const QString keyName = CodePage1252::decode(key);
    if (!canNameProfileLine(sectionName, keyName)) return;
    const ProfilePlace place = scan(file, section, key, 0, Whole);
    const QByteArray text = profileInsertion(place, sectionName, keyName, CodePage1252::decode(value));
    const QByteArray after = file.left(place.begin) + text + file.mid(place.end);

    QByteArray written = value;
    written.replace('\r', "");
    check(plainReading(after, section, key) == std::optional(valueOf(written)));
    for (const QByteArray &otherSection : {QByteArray("127"), QByteArray("128"), section})
        for (const QByteArray &otherKey : {QByteArray("RTF"), QByteArray("Header"), key})
            check((sameName(section, otherSection) && sameName(key, otherKey)) ||
                  plainReading(file, otherSection, otherKey) == plainReading(after, otherSection, otherKey));

    const ProfilePlace again = scan(after, section, key, 0, Whole);
    check(again.keyFound);
    const QByteArray textAgain = profileInsertion(again, sectionName, keyName, CodePage1252::decode(value));
    check(scan(after.left(again.begin) + textAgain + after.mid(again.end), section, key, Whole, Whole).value ==
          valueOf(written));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArrayList lines = QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)).split('\n');
    if (lines.size() < 4) return 0;
    const QByteArray file = lines.mid(3).join('\n');
    checkReading(file, lines[0], lines[1]);
    checkWriting(file, lines[0], lines[1], lines[2]);
    return 0;
}
