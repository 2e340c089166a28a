// Looks for one key of one section in the bytes of a profile file, handed over in pieces of any size.
//
// The form of the file: "[section]" lines, "key=value" lines, ";" comments, anything else is passed over. Lines end in
// LF or CR LF. Blanks around names and values don't count, names compare without case, and the first section and the
// first key of a name win. However long a line is, only the asked-for part of it is kept in memory.
#pragma once

#include "platform/system/TrimmedBytes.h"

namespace orvane
{

// Where the key stands, or where a line for it has to go.
struct ProfilePlace {
    bool sectionFound = false;
    bool keyFound = false;
    QByteArray value;           // the found key's, without blanks and quotes around it, cut to the limit
    qint64 begin = 0;           // the file's bytes from begin to before end are the old value;
    qint64 end = 0;             // both the same where a line is to be put in
    bool afterOpenLine = false; // the line before that point has no line end
    QByteArray lineEnd = "\r\n";
};

class ProfileScan
{
public:
    // Names as in code page 1252: what has no code there is its substitute.
    ProfileScan(QStringView section, QStringView key, qsizetype valueLimit);

    // False once the place is known and the rest of the file needn't be read.
    bool take(QByteArrayView piece);

    // To be called once, behind the last piece.
    ProfilePlace finish();

private:
    enum class Part { Indent, SectionName, KeyName, Value, Rest };

    void takeByte(char byte);
    void beginLine(char first);
    void takeSectionName(char byte);
    void takeKeyName(char byte);
    void takeValue(char byte);
    void endLine(bool closed);
    void endValue(bool closed);

    QString m_section;
    QString m_key;
    qsizetype m_valueLimit;
    TrimmedBytes m_sectionName;
    TrimmedBytes m_keyName;
    TrimmedBytes m_value;
    ProfilePlace m_place;
    Part m_part = Part::Indent;
    qint64 m_offset = 0;
    char m_previous = '\n';
    bool m_lineEndKnown = false;
    bool m_done = false;
};

} // namespace orvane
