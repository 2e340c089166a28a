#include "platform/system/TrimmedBytes.h"

#include <algorithm>

namespace orvane
{

void TrimmedBytes::clear()
{
    *this = TrimmedBytes(m_limit);
}

void TrimmedBytes::append(char byte)
{
    const bool blank = isBlank(byte);
    if (blank && m_seen == 0) return;
    ++m_seen;
    if (m_kept.size() < m_limit) m_kept.append(byte);
    if (blank) return;
    m_length = m_seen;
    m_last = byte;
}

QByteArray TrimmedBytes::bytes() const
{
    return m_kept.left(std::min<qint64>(m_length, m_kept.size()));
}

QByteArray TrimmedBytes::unquoted() const
{
    return isQuoted() ? m_kept.mid(1, std::min<qint64>(m_length - 2, m_kept.size())) : bytes();
}

bool TrimmedBytes::isQuoted() const
{
    if (m_length < 2 || m_kept.isEmpty()) return false;
    const char first = m_kept.front();
    return (first == '"' || first == '\'') && first == m_last;
}

} // namespace orvane
