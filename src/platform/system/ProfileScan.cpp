#include "platform/system/ProfileScan.h"

#include "platform/system/CodePage1252.h"

namespace orvane
{

namespace
{

// As the name would be read back from the file.
QString nameInFile(QStringView name)
{
    const QByteArray bytes = CodePage1252::encode(name);
    TrimmedBytes trimmed(bytes.size());
    for (const char byte : bytes)
        trimmed.append(byte);
    return CodePage1252::decode(trimmed.bytes());
}

bool isSameName(const TrimmedBytes &found, const QString &wanted)
{
    return found.length() == wanted.size() &&
           CodePage1252::decode(found.bytes()).compare(wanted, Qt::CaseInsensitive) == 0;
}

} // namespace

// A quoted value has a quote in front of the bytes that are kept of it.
ProfileScan::ProfileScan(QStringView section, QStringView key, qsizetype valueLimit)
    : m_section(nameInFile(section)), m_key(nameInFile(key)), m_valueLimit(valueLimit), m_sectionName(m_section.size()),
      m_keyName(m_key.size()), m_value(valueLimit + 1)
{
}

bool ProfileScan::take(QByteArrayView piece)
{
    for (qsizetype i = 0; i < piece.size() && !m_done; ++i) {
        if (m_part == Part::Rest && piece[i] != '\n') {
            const qsizetype found = piece.indexOf('\n', i);
            const qsizetype next = found < 0 ? piece.size() : found;
            m_offset += next - i;
            m_previous = piece[next - 1];
            if (found < 0) break;
            i = next;
        }
        takeByte(piece[i]);
    }
    return !m_done;
}

ProfilePlace ProfileScan::finish()
{
    if (!m_done) endLine(false);
    if (!m_place.sectionFound) {
        m_place.begin = m_place.end = m_offset;
        m_place.afterOpenLine = m_previous != '\n';
    }
    return m_place;
}

void ProfileScan::takeByte(char byte)
{
    if (byte == '\n') {
        endLine(true);
    } else {
        switch (m_part) {
        case Part::Indent:
            beginLine(byte);
            break;
        case Part::SectionName:
            takeSectionName(byte);
            break;
        case Part::KeyName:
            takeKeyName(byte);
            break;
        case Part::Value:
            takeValue(byte);
            break;
        case Part::Rest:
            break;
        }
    }
    m_previous = byte;
    ++m_offset;
}

void ProfileScan::beginLine(char first)
{
    if (TrimmedBytes::isBlank(first)) return;
    if (first == '[') {
        m_sectionName.clear();
        m_part = Part::SectionName;
    } else if (first == ';' || !m_place.sectionFound) {
        m_part = Part::Rest;
    } else {
        m_keyName.clear();
        m_part = Part::KeyName;
        takeKeyName(first);
    }
}

// A bracket that is never closed makes no section.
void ProfileScan::takeSectionName(char byte)
{
    if (byte != ']') {
        m_sectionName.append(byte);
        return;
    }
    m_part = Part::Rest;
    if (m_place.sectionFound)
        m_done = true;
    else
        m_place.sectionFound = isSameName(m_sectionName, m_section);
}

void ProfileScan::takeKeyName(char byte)
{
    if (byte != '=') {
        m_keyName.append(byte);
        if (m_keyName.length() > m_key.size()) m_part = Part::Rest;
    } else if (isSameName(m_keyName, m_key)) {
        m_part = Part::Value;
        m_place.keyFound = true;
        m_place.begin = m_offset + 1;
    } else {
        m_part = Part::Rest;
    }
}

void ProfileScan::takeValue(char byte)
{
    const bool wasEmpty = m_value.length() == 0;
    m_value.append(byte);
    if (wasEmpty && m_value.length() != 0) m_place.begin = m_offset;
}

void ProfileScan::endLine(bool closed)
{
    if (closed && !m_lineEndKnown) {
        m_lineEndKnown = true;
        m_place.lineEnd = m_previous == '\r' ? "\r\n" : "\n";
    }
    if (m_part == Part::Value) {
        endValue(closed);
    } else if (m_place.sectionFound && m_part != Part::Indent) {
        m_place.begin = m_place.end = m_offset + (closed ? 1 : 0);
        m_place.afterOpenLine = !closed;
    }
    m_part = Part::Indent;
}

void ProfileScan::endValue(bool closed)
{
    m_place.end = m_offset - (closed && m_previous == '\r' ? 1 : 0);
    m_place.value = m_value.unquoted().left(m_valueLimit);
    m_done = true;
}

} // namespace orvane
