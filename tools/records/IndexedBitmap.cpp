#include "records/IndexedBitmap.h"

#include "records/FormColours.h"

#include <QHash>
#include <QtEndian>
#include <algorithm>
#include <iterator>
#include <vector>

namespace orvane::records
{

namespace
{

constexpr int FileHeaderSize = 14;
constexpr int InfoHeaderSize = 40;
constexpr int PaddingSize = 2;
constexpr int PixelsPerMeter = 3780; // 96 to the inch

using Palette = std::vector<QRgb>;

QRgb between(const QColor &from, const QColor &to, int step, int steps)
{
    const auto mix = [&](int a, int b) { return a + (b - a) * step / steps; };
    return qRgb(mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue()));
}

// A step of one ramp may come upon another color; no two entries are alike.
QRgb unlike(const Palette &palette, QRgb colour)
{
    while (std::find(palette.begin(), palette.end(), colour) != palette.end())
        colour = qRgb(qRed(colour), qGreen(colour), qBlue(colour) - 1);
    return colour;
}

Palette paletteOf(int colours)
{
    using namespace colours;
    static constexpr QColor solid[] = {Paper, Tint, Ground, Rule, Ink, Pen};
    static constexpr QColor ramps[][2] = {{Ink, Paper}, {Pen, Paper}, {Ink, Tint}, {Ground, Paper}};
    Palette palette;
    for (const QColor &colour : solid)
        palette.push_back(colour.rgb());
    const int count = static_cast<int>(std::size(ramps));
    const int steps = colours - static_cast<int>(palette.size());
    for (int i = 0; i < count; ++i) {
        const int own = steps / count + (i < steps % count ? 1 : 0);
        for (int step = 1; step <= own; ++step)
            palette.push_back(unlike(palette, between(ramps[i][0], ramps[i][1], step, own + 1)));
    }
    return palette;
}

int distance(QRgb a, QRgb b)
{
    const int red = qRed(a) - qRed(b);
    const int green = qGreen(a) - qGreen(b);
    const int blue = qBlue(a) - qBlue(b);
    return red * red + green * green + blue * blue;
}

// The nearest, and the first of several.
class Quantizer
{
public:
    explicit Quantizer(const Palette &palette) : m_palette(palette) {}

    char indexOf(QRgb colour)
    {
        const auto known = m_known.constFind(colour);
        if (known != m_known.constEnd()) return *known;
        size_t best = 0;
        for (size_t i = 1; i < m_palette.size(); ++i)
            if (distance(colour, m_palette[i]) < distance(colour, m_palette[best])) best = i;
        return m_known[colour] = static_cast<char>(best);
    }

private:
    const Palette &m_palette;
    QHash<QRgb, char> m_known;
};

template <class Number>
void append(QByteArray &bytes, Number number)
{
    number = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char *>(&number), sizeof number);
}

void appendHeaders(QByteArray &file, const QImage &picture, quint32 colours)
{
    const auto pixels = static_cast<quint32>(picture.width() * picture.height());
    const quint32 offset = FileHeaderSize + InfoHeaderSize + 4 * colours;
    file += "BM";
    append<quint32>(file, offset + pixels + PaddingSize);
    append<quint32>(file, 0);
    append<quint32>(file, offset);
    append<quint32>(file, InfoHeaderSize);
    append<qint32>(file, picture.width());
    append<qint32>(file, picture.height()); // the rows come from the foot up
    append<quint16>(file, 1);
    append<quint16>(file, 8);
    append<quint32>(file, 0);
    append<quint32>(file, pixels);
    append<qint32>(file, PixelsPerMeter);
    append<qint32>(file, PixelsPerMeter);
    append<quint32>(file, colours);
    append<quint32>(file, colours);
}

} // namespace

QByteArray indexedBitmap(const QImage &picture, int colours)
{
    const Palette palette = paletteOf(colours);
    Quantizer quantizer(palette);
    QByteArray file;
    appendHeaders(file, picture, static_cast<quint32>(palette.size()));
    for (const QRgb colour : palette)
        append<quint32>(file, colour & RGB_MASK);
    for (int y = picture.height() - 1; y >= 0; --y)
        for (int x = 0; x < picture.width(); ++x) // 760 is a multiple of four: the rows need no filling
            file += quantizer.indexOf(picture.pixel(x, y));
    file.append(PaddingSize, '\0');
    return file;
}

} // namespace orvane::records
