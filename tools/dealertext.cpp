// dealertext: turns a dealer's plain text into the scrambled file that the program reads, and back.
#include "tour/DealerText.h"
#include "platform/system/CodePage1252.h"
#include "platform/system/RunTimeError.h"

#include <QFile>
#include <QSaveFile>
#include <QStringDecoder>

#include <cstdio>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace
{

enum ExitCode { Done = 0, Failed = 1, WrongUse = 2 };

constexpr auto Usage = R"(usage: dealertext scramble TEXT DATA
       dealertext unscramble DATA TEXT
       dealertext --help

scramble writes the file DealerData.dat of a text, unscramble gives the text of
such a file. Either file may be "-" for the standard input or output. A file is
replaced in one step, or left as it was when something fails.

TEXT is UTF-8. Its characters have to be in code page 1252, and one from code 192
on (most accented letters) is refused at the positions where it could not be read
back; a blank more or less in front of it often helps.

The program shows the text in a box of several lines and adds a line end of its
own. So every line end becomes CR LF, and one line end at the end of TEXT is left
out: a TEXT that is empty, or one empty line, gives DATA of no bytes at all, and
then the program shows no dealer text. unscramble does the reverse and writes
plain LF line ends.

Exit codes: 0 done, 1 failed (the reason is on the standard error output), 2
wrong use.
)";

int fail(const QString &reason)
{
    std::fputs(qUtf8Printable("dealertext: "_L1 + reason + u'\n'), stderr);
    return Failed;
}

std::optional<QByteArray> readAll(const QString &name, QString &reason)
{
    QFile file(name);
    const bool opened = name == "-"_L1 ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    QByteArray bytes;
    if (opened) bytes = file.readAll();
    if (opened && file.error() == QFileDevice::NoError) return bytes;
    reason = "cannot read \"%1\": %2"_L1.arg(name, file.errorString());
    return std::nullopt;
}

bool writeStandardOutput(const QByteArray &bytes, QString &reason)
{
    const auto size = size_t(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0) return true;
    reason = "cannot write the standard output: "_L1 + qt_error_string();
    return false;
}

bool writeAll(const QString &name, const QByteArray &bytes, QString &reason)
{
    if (name == "-"_L1) return writeStandardOutput(bytes, reason);
    QSaveFile file(name);
    // A commit overlooks what its own flush couldn't write.
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() && file.commit())
        return true;
    reason = "cannot write \"%1\": %2"_L1.arg(name, file.errorString());
    return false;
}

std::optional<QByteArray> scramble(const QByteArray &utf8, QString &reason)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder(utf8);
    if (decoder.hasError()) {
        reason = u"the text is not UTF-8"_s;
        return std::nullopt;
    }
    text.replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n');
    if (text.endsWith(u'\n')) text.chop(1);
    return orvane::ScrambleDealerData(text.replace("\n"_L1, "\r\n"_L1));
}

QByteArray unscramble(const QByteArray &data)
{
    QString text = orvane::UnscrambleDealerData(orvane::CodePage1252::decode(data));
    if (!text.isEmpty()) text += u'\n';
    return text.replace("\r\n"_L1, "\n"_L1).toUtf8();
}

int convert(const QString &command, const QString &from, const QString &to)
{
    QString reason;
    const auto input = readAll(from, reason);
    if (!input) return fail(reason);
    const auto output = command == "scramble"_L1 ? scramble(*input, reason) : unscramble(*input);
    if (!output || !writeAll(to, *output, reason)) return fail(reason);
    return Done;
}

} // namespace

int main(int argc, char *argv[])
{
    const QString command = argc > 1 ? QFile::decodeName(argv[1]) : QString();
    if (argc == 2 && (command == "--help"_L1 || command == "-h"_L1)) {
        std::fputs(Usage, stdout);
        return Done;
    }
    if (argc != 4 || (command != "scramble"_L1 && command != "unscramble"_L1)) {
        std::fputs(Usage, stderr);
        return WrongUse;
    }
    try {
        return convert(command, QFile::decodeName(argv[2]), QFile::decodeName(argv[3]));
    } catch (const orvane::RunTimeError &refusal) {
        return fail(refusal.Description());
    }
}
