// A plot of costs over sizes as SVG, both in powers of ten, with the line that each series is fitted to.
#pragma once

#include <QList>
#include <QString>
#include <algorithm>
#include <cmath>

namespace bench
{

struct Series {
    QString name;
    QString colour;
    QList<double> sizes;
    QList<double> costs;
};

struct Fit {
    double exponent; // 1: the cost grows as the size does
    double factor;   // cost of size 1
};

// The straight line through the logarithms with the least squares, from this size on.
inline Fit fitOf(const Series &series, double from = 0)
{
    double n = 0, x = 0, y = 0, xx = 0, xy = 0;
    for (qsizetype i = 0; i < series.sizes.size(); ++i) {
        if (series.sizes[i] < from) continue;
        const double a = std::log10(series.sizes[i]);
        const double b = std::log10(series.costs[i]);
        n += 1, x += a, y += b, xx += a * a, xy += a * b;
    }
    const double exponent = (n * xy - x * y) / (n * xx - x * x);
    return {exponent, std::pow(10, (y - exponent * x) / n)};
}

class LogPlot
{
public:
    // The powers of ten that the axes begin and end with.
    LogPlot(int leftPower, int rightPower, int lowPower, int highPower)
        : m_left(leftPower), m_right(rightPower), m_low(lowPower), m_high(highPower)
    {
    }

    QString draw(const QString &title, const QString &sizes, const QString &costs, const QList<Series> &all)
    {
        m_svg = QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 640 440\" "
                               "font-family=\"sans-serif\" font-size=\"12\">\n"
                               "<rect width=\"640\" height=\"440\" fill=\"#ffffff\"/>\n");
        text(Left, 24, title, QStringLiteral("#202020"));
        grid();
        text((Left + Right) / 2 - 20, 428, sizes, QStringLiteral("#202020"));
        text(8, Top - 10, costs, QStringLiteral("#202020"));
        for (qsizetype i = 0; i < all.size(); ++i)
            plot(all[i], double(i));
        return m_svg + QStringLiteral("</svg>\n");
    }

private:
    static constexpr double Left = 64;
    static constexpr double Right = 616;
    static constexpr double Top = 56;
    static constexpr double Bottom = 392;

    double x(double size) const { return Left + (std::log10(size) - m_left) * (Right - Left) / (m_right - m_left); }
    double y(double cost) const { return Bottom - (std::log10(cost) - m_low) * (Bottom - Top) / (m_high - m_low); }

    void text(double left, double base, const QString &words, const QString &colour)
    {
        m_svg +=
            QStringLiteral("<text x=\"%1\" y=\"%2\" fill=\"%3\">%4</text>\n").arg(left).arg(base).arg(colour, words);
    }

    void line(double x1, double y1, double x2, double y2, const QString &stroke)
    {
        m_svg += QStringLiteral("<line x1=\"%1\" y1=\"%2\" x2=\"%3\" y2=\"%4\" stroke=\"%5\"/>\n")
                     .arg(x1, 0, 'f', 1)
                     .arg(y1, 0, 'f', 1)
                     .arg(x2, 0, 'f', 1)
                     .arg(y2, 0, 'f', 1)
                     .arg(stroke);
    }

    void grid()
    {
        const QString grey = QStringLiteral("#d8d8d8");
        for (int power = m_left; power <= m_right; ++power) {
            const double at = x(std::pow(10, power));
            line(at, Top, at, Bottom, grey);
            text(at - 8, Bottom + 18, QString::number(std::pow(10, power)), QStringLiteral("#505050"));
        }
        for (int power = m_low; power <= m_high; ++power) {
            const double at = y(std::pow(10, power));
            line(Left, at, Right, at, grey);
            text(8, at + 4, QString::number(std::pow(10, power)), QStringLiteral("#505050"));
        }
    }

    void plot(const Series &series, double number)
    {
        const Fit fit = fitOf(series);
        const double last = series.sizes.last();
        const double first = series.sizes.first();
        line(x(first), y(fit.factor * std::pow(first, fit.exponent)), x(last),
             y(fit.factor * std::pow(last, fit.exponent)), series.colour);
        for (qsizetype i = 0; i < series.sizes.size(); ++i)
            m_svg += QStringLiteral("<circle cx=\"%1\" cy=\"%2\" r=\"4\" fill=\"%3\"/>\n")
                         .arg(x(series.sizes[i]), 0, 'f', 1)
                         .arg(y(series.costs[i]), 0, 'f', 1)
                         .arg(series.colour);
        text(Left + 16, Top + 20 + 18 * number,
             QStringLiteral("%1: exponent %2").arg(series.name).arg(fit.exponent, 0, 'f', 2), series.colour);
    }

    int m_left;
    int m_right;
    int m_low;
    int m_high;
    QString m_svg;
};

} // namespace bench
