// A name or a value taken byte by byte from a line of any length, without the blanks around it. Keeps a fixed number of
// bytes at most, and still knows how long the whole is and how it ends.
#pragma once

#include <QString>

namespace orvane
{

class TrimmedBytes
{
public:
    explicit TrimmedBytes(qsizetype limit) : m_limit(limit) {}

    static bool isBlank(char byte) { return byte == ' ' || byte == '\t' || byte == '\r'; }

    void clear();
    void append(char byte);

    // The length of the whole, which may be beyond the limit.
    qint64 length() const { return m_length; }

    // Its first bytes, no more than the limit.
    QByteArray bytes() const;

    // The same without a pair of quotes around the whole, single or double.
    QByteArray unquoted() const;

private:
    bool isQuoted() const;

    qsizetype m_limit;
    QByteArray m_kept;
    qint64 m_seen = 0;
    qint64 m_length = 0;
    char m_last = 0;
};

} // namespace orvane
