#include "platform/controls/Palette.h"

#include "platform/controls/pictures/ProgramMark.h"

#include <QApplication>
#include <QFont>
#include <QStyleFactory>
#include <QToolTip>

namespace orvane
{

namespace
{
void setTextColours(QPalette &looks)
{
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        looks.setColor(role, palette::Ink);
        looks.setColor(QPalette::Disabled, role, palette::DisabledText);
    }
    looks.setColor(QPalette::BrightText, palette::White);
    looks.setColor(QPalette::PlaceholderText, palette::GreyText);
    looks.setColor(QPalette::Link, palette::DeepTeal);
    looks.setColor(QPalette::LinkVisited, palette::GreyText);
    looks.setColor(QPalette::Highlight, palette::DeepTeal);
    looks.setColor(QPalette::HighlightedText, palette::White);
    looks.setColor(QPalette::Disabled, QPalette::Highlight, palette::Line);
    looks.setColor(QPalette::Disabled, QPalette::HighlightedText, palette::Ink);
}

void setGrounds(QPalette &looks)
{
    looks.setColor(QPalette::Window, palette::Mist);
    looks.setColor(QPalette::Button, palette::Mist);
    looks.setColor(QPalette::Base, palette::White);
    looks.setColor(QPalette::Disabled, QPalette::Base, palette::Paper);
    looks.setColor(QPalette::AlternateBase, palette::Paper);
    looks.setColor(QPalette::ToolTipBase, palette::Sand);
    looks.setColor(QPalette::Light, palette::White);
    looks.setColor(QPalette::Midlight, palette::Paper);
    looks.setColor(QPalette::Mid, palette::Line);
    looks.setColor(QPalette::Dark, palette::GreyText);
    looks.setColor(QPalette::Shadow, palette::Ink);
}

// The two families that no font package stands in for by itself.
void addSubstitutes()
{
    QFont::insertSubstitution(QStringLiteral("MS Sans Serif"), QStringLiteral("Liberation Sans"));
    QFont::insertSubstitution(QStringLiteral("Verdana"), QStringLiteral("DejaVu Sans"));
}
} // namespace

QPalette applicationPalette()
{
    QPalette looks;
    setGrounds(looks);
    setTextColours(looks);
    return looks;
}

void applyLooks(QApplication &application)
{
    constexpr double TextPoints = 9;
    addSubstitutes();
    QFont font(QStringLiteral("Arial"));
    font.setPointSizeF(TextPoints);
    QApplication::setFont(font);
    QApplication::setWindowIcon(smallProgramMark());
    application.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QPalette looks = applicationPalette();
    QApplication::setPalette(looks);
    // Desktops hand out palettes of their own for these, which would win over the application's.
    for (const char *const className : {"QMenu", "QMenuBar", "QComboBox", "QComboBoxListView", "QMessageBoxLabel"})
        QApplication::setPalette(looks, className);
    QToolTip::setPalette(looks);
}

} // namespace orvane
