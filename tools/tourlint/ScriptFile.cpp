#include "ScriptFile.h"

#include "platform/system/CodePage1252.h"
#include "platform/system/File.h"
#include "platform/system/Number.h"
#include "platform/system/ProfileFile.h"
#include "platform/system/RunTimeError.h"
#include "tour/modDemo.h"

#include "ByteFaults.h"

#include <QStringList>

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace orvane::lint
{

namespace
{
bool isSame(const QString &one, const QString &other)
{
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

// What counts as a blank in the program's own reading.
QString withoutBlanks(const QString &text)
{
    const auto isBlank = [](QChar character) { return character == u' ' || character == u'\t' || character == u'\r'; };
    const auto begin = std::find_if_not(text.begin(), text.end(), isBlank);
    const auto end = std::find_if_not(text.rbegin(), std::make_reverse_iterator(begin), isBlank).base();
    return QString(begin, end - begin);
}

// The first line of a file that begins with a mark is one that the program can't make out.
bool isMarked(const QString &line)
{
    return line.startsWith(QString::fromLatin1(ByteOrderMark));
}

// Finds the lines of sections and keys; their values are then read as the program reads them.
class Outline
{
public:
    Outline(ScriptFile &script, Findings &findings) : m_script(script), m_findings(findings) {}

    void take(const QString &line)
    {
        ++m_line;
        if (line.startsWith(u'['))
            takeSection(line);
        else if (!line.isEmpty() && !line.startsWith(u';') && !isMarked(line))
            takeKey(line);
    }

private:
    void find(const QString &message) { m_findings.push_back({m_line, message}); }
    void takeSection(const QString &line);
    void takeKey(const QString &line);
    Value *valueOf(const QString &key);

    ScriptFile &m_script;
    Findings &m_findings;
    Step *m_step = nullptr; // null in front of the first section and in one that is there twice
    bool m_inSection = false;
    int m_line = 0;
};

void Outline::takeSection(const QString &line)
{
    const qsizetype end = line.indexOf(u']');
    if (end < 0) return find(u"the section has no closing bracket"_s);
    const QString tag = withoutBlanks(line.mid(1, end - 1));
    m_inSection = true;
    m_step = nullptr;
    if (const Step *before = m_script.step(tag))
        return find(u"section [%1] is in line %2 already, and this one is never read"_s.arg(tag).arg(before->line));
    if (!isNumber(tag)) find(u"section [%1]: a tag is a number"_s.arg(tag));
    m_script.steps.push_back({.tag = tag, .line = m_line});
    m_step = &m_script.steps.back();
}

Value *Outline::valueOf(const QString &key)
{
    if (isSame(key, u"Header"_s)) return &m_step->heading;
    if (isSame(key, u"RTF"_s)) return &m_step->body;
    if (isSame(key, u"NextRTF"_s)) return &m_step->next;
    if (isSame(key, u"PrevRTF"_s)) return &m_step->back;
    return nullptr;
}

void Outline::takeKey(const QString &line)
{
    const qsizetype sign = line.indexOf(u'=');
    if (sign < 0) return find(u"the line is neither a section nor a key nor a comment"_s);
    if (!m_inSection) return find(u"the key stands in front of the first section"_s);
    if (!m_step) return;
    const QString key = withoutBlanks(line.left(sign));
    Value *value = valueOf(key);
    if (!value) return find(u"[%1] has an unknown key \"%2\""_s.arg(m_step->tag, key));
    if (value->line) return find(u"[%1] has the key %2 in line %3 already"_s.arg(m_step->tag, key).arg(value->line));
    value->line = m_line;
}

void readValue(const QString &fileName, const QString &tag, const QString &key, int size, Value &value)
{
    if (value.line) value.text = readProfileString(tag, key, value.text, size, fileName);
}
} // namespace

bool Step::isEnd() const
{
    return isNumber(tag) && (toNumber(tag) == EndTag || toNumber(tag) == EndWithDealerTag);
}

const Step *ScriptFile::step(const QString &tag) const
{
    const auto found = std::ranges::find_if(steps, [&](const Step &step) { return isSame(step.tag, tag); });
    return found == steps.end() ? nullptr : &*found;
}

ScriptFile readScriptFile(const QString &fileName, Findings &findings)
{
    const QByteArray bytes = readWholeFile(fileName);
    ScriptFile script;
    Outline outline(script, findings);
    for (const QByteArray &line : bytes.split('\n'))
        outline.take(withoutBlanks(CodePage1252::decode(line)));
    const int whole = static_cast<int>(bytes.size()) + 1;
    for (Step &step : script.steps) {
        readValue(fileName, step.tag, u"Header"_s, whole, step.heading);
        readValue(fileName, step.tag, u"RTF"_s, whole, step.body);
        readValue(fileName, step.tag, u"NextRTF"_s, whole, step.next);
        readValue(fileName, step.tag, u"PrevRTF"_s, whole, step.back);
    }
    return script;
}

bool isNumber(const QString &text)
{
    try {
        toNumber(text);
        return true;
    } catch (const RunTimeError &) {
        return false;
    }
}

} // namespace orvane::lint
