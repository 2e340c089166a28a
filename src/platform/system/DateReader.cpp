#include "platform/system/DateReader.h"

#include <QLocale>
#include <QStringList>
#include <algorithm>
#include <array>

namespace orvane
{

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr qsizetype LongestText = 100;
constexpr int LongestNumber = 4;
constexpr int FirstYearOfLastCentury = 30; // of two digits

// A word, or a number of so many digits.
struct Part {
    QString word;
    int number = 0;
    int digits = 0;
};

class Parts
{
public:
    // False where the text has a character that stands in no date.
    bool read(QStringView text);
    const QList<Part> &list() const { return m_parts; }

private:
    bool take(char32_t character);
    bool takeDigit(int digit);
    bool takeSeparator(char32_t separator);
    Part &begin();

    QList<Part> m_parts;
    bool m_inside = false;    // of a part
    char32_t m_separator = 0; // the one behind the last part, blanks apart
};

bool Parts::read(QStringView text)
{
    for (const char32_t character : text.toUcs4())
        if (!take(character)) return false;
    return m_separator == 0 || m_separator == U'.';
}

bool Parts::take(char32_t character)
{
    if (QChar::category(character) == QChar::Other_Format) return true; // the direction of writing
    if (QChar::isDigit(character)) return takeDigit(QChar::digitValue(character));
    if (QChar::isLetter(character) || (m_inside && QChar::isMark(character))) {
        Part &part = m_inside && m_parts.last().digits == 0 ? m_parts.last() : begin();
        part.word += QChar::fromUcs4(character);
        return true;
    }
    m_inside = false;
    return QChar::isSpace(character) || takeSeparator(character);
}

bool Parts::takeDigit(int digit)
{
    Part &part = m_inside && m_parts.last().digits > 0 ? m_parts.last() : begin();
    part.number = 10 * part.number + digit;
    return ++part.digits <= LongestNumber;
}

// One between two parts; a dot may also end a word that is cut short.
bool Parts::takeSeparator(char32_t separator)
{
    constexpr std::u32string_view known = U"/-.,\u060C\u2010";
    if (m_parts.isEmpty() || known.find(separator) == std::u32string_view::npos) return false;
    const bool endsWord = m_separator == U'.' && m_parts.last().digits == 0;
    if (m_separator != 0 && !endsWord) return false;
    m_separator = separator;
    return true;
}

Part &Parts::begin()
{
    m_inside = true;
    m_separator = 0;
    return m_parts.emplace_back();
}

QString folded(const QString &word)
{
    return word.toCaseFolded().remove(u'.').trimmed();
}

bool isMonth(const QLocale &locale, int month, const QString &word)
{
    const auto names = {locale.monthName(month), locale.monthName(month, QLocale::ShortFormat),
                        locale.standaloneMonthName(month), locale.standaloneMonthName(month, QLocale::ShortFormat)};
    return std::any_of(names.begin(), names.end(), [&](const QString &name) { return folded(name) == word; });
}

// 1 to 12, or 0.
int monthOf(const QString &word)
{
    if (word == "sept"_L1) return 9;
    for (const QLocale &locale : {QLocale(), QLocale::c()})
        for (int month = 1; month <= 12; ++month)
            if (isMonth(locale, month, word)) return month;
    return 0;
}

// The words between the numbers in the locale's own formats.
QStringList fillers()
{
    QStringList words;
    for (const auto length : {QLocale::ShortFormat, QLocale::LongFormat}) {
        QString format = QLocale().dateFormat(length);
        bool quoted = false;
        for (QChar &character : format) {
            if (character == u'\'') quoted = !quoted;
            if ((!quoted && u"dMy"_s.contains(character)) || !(character.isLetter() || character.isMark()))
                character = u' ';
        }
        Parts parts;
        parts.read(format);
        for (const Part &part : parts.list())
            words << folded(part.word);
    }
    return words;
}

// Three numbers, or two round a month that has become its number.
struct Fields {
    std::array<Part, 3> parts;
    int named = -1; // the place of the month that was a word
};

std::optional<Fields> fieldsOf(const QList<Part> &parts)
{
    const QStringList ignored = fillers();
    Fields fields;
    size_t count = 0;
    for (Part part : parts) {
        const QString word = folded(part.word);
        const int month = part.digits ? 0 : monthOf(word);
        if (!part.digits && !month && ignored.contains(word)) continue;
        if (count == fields.parts.size() || (!part.digits && (!month || fields.named >= 0))) return {};
        if (month) fields.named = int(count);
        if (month) part.number = month;
        fields.parts.at(count++) = part;
    }
    if (count < fields.parts.size()) return {};
    return fields;
}

// The letters d, M and y in the order that the locale's short form has them in.
QString localeOrder()
{
    const QString format = QLocale().dateFormat(QLocale::ShortFormat);
    QString order;
    for (const QChar letter : format)
        if (u"dMy"_s.contains(letter) && !order.contains(letter)) order += letter;
    return order.size() == 3 ? order : u"dMy"_s;
}

QStringList ordersToTry()
{
    const QString order = localeOrder();
    const bool monthFirst = order.indexOf(u'M') < order.indexOf(u'd');
    const QString yearLast = monthFirst ? u"Mdy"_s : u"dMy"_s;
    const QString other = monthFirst ? u"dMy"_s : u"Mdy"_s;
    return {order, yearLast, other, u"yMd"_s};
}

// 0 where the number is none.
int yearOf(const Part &part)
{
    if (part.digits > 2) return part.number < 100 ? 0 : part.number;
    return part.number + (part.number < FirstYearOfLastCentury ? 2000 : 1900);
}

QDate dateIn(const Fields &fields, const QString &order)
{
    const auto placeOf = [&](QChar letter) { return size_t(order.indexOf(letter)); };
    if (fields.named >= 0 && int(placeOf(u'M')) != fields.named) return {};
    const Part &day = fields.parts.at(placeOf(u'd'));
    const Part &month = fields.parts.at(placeOf(u'M'));
    const Part &year = fields.parts.at(placeOf(u'y'));
    if (day.digits > 2 || month.digits > 2 || yearOf(year) == 0) return {};
    return {yearOf(year), month.number, day.number};
}
} // namespace

std::optional<QDate> readDate(const QString &text)
{
    Parts parts;
    if (text.size() > LongestText || !parts.read(text)) return {};
    const auto fields = fieldsOf(parts.list());
    if (!fields) return {};
    for (const QString &order : ordersToTry())
        if (const QDate date = dateIn(*fields, order); date.isValid()) return date;
    return {};
}

} // namespace orvane
