#include "platform/system/SendKeys.h"

#include "platform/system/RunTimeError.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <map>
#include <vector>

namespace orvane
{

namespace
{
struct Stroke {
    int key = 0;
    Qt::KeyboardModifiers modifiers;
    QString text;
};

[[noreturn]] void refuse(const QString &keys)
{
    throw RunTimeError(InvalidProcedureCall, QStringLiteral("\"%1\" can't be sent as keys.").arg(keys));
}

int namedKey(const QString &name)
{
    static const std::map<QString, int> named{
        {QStringLiteral("DEL"), Qt::Key_Delete},   {QStringLiteral("DELETE"), Qt::Key_Delete},
        {QStringLiteral("ENTER"), Qt::Key_Return}, {QStringLiteral("ESC"), Qt::Key_Escape},
        {QStringLiteral("TAB"), Qt::Key_Tab},      {QStringLiteral("BS"), Qt::Key_Backspace},
        {QStringLiteral("UP"), Qt::Key_Up},        {QStringLiteral("DOWN"), Qt::Key_Down},
        {QStringLiteral("LEFT"), Qt::Key_Left},    {QStringLiteral("RIGHT"), Qt::Key_Right},
        {QStringLiteral("HOME"), Qt::Key_Home},    {QStringLiteral("END"), Qt::Key_End},
        {QStringLiteral("PGUP"), Qt::Key_PageUp},  {QStringLiteral("PGDN"), Qt::Key_PageDown},
    };
    const auto found = named.find(name.toUpper());
    return found == named.end() ? 0 : found->second;
}

// What a keyboard gives with the key: Ctrl makes a letter its control character.
QString textOf(QChar sign, Qt::KeyboardModifiers modifiers)
{
    constexpr int LetterBits = 0x1F;
    if (modifiers & Qt::AltModifier) return {};
    const QChar upper = sign.toUpper();
    if (!(modifiers & Qt::ControlModifier)) return modifiers & Qt::ShiftModifier ? upper : sign;
    return upper >= u'A' && upper <= u'Z' ? QChar(upper.unicode() & LetterBits) : QString();
}

Stroke strokeOf(const QString &name, Qt::KeyboardModifiers modifiers)
{
    if (name.size() > 1) return {namedKey(name), modifiers, {}};
    const QChar sign = name.at(0);
    return {sign.toUpper().unicode(), modifiers, textOf(sign, modifiers)};
}

Qt::KeyboardModifier modifierOf(QChar mark)
{
    switch (mark.unicode()) {
    case u'^':
        return Qt::ControlModifier;
    case u'%':
        return Qt::AltModifier;
    case u'+':
        return Qt::ShiftModifier;
    default:
        return Qt::NoModifier;
    }
}

// The name of the key at the position, which moves behind it.
QString keyAt(const QString &keys, qsizetype &position)
{
    if (keys.at(position) != u'{') return keys.at(position++);
    const qsizetype end = keys.indexOf(u'}', position + 2);
    if (end < 0) refuse(keys);
    const QString name = keys.mid(position + 1, end - position - 1);
    position = end + 1;
    return name;
}

std::vector<Stroke> strokesOf(const QString &keys)
{
    std::vector<Stroke> strokes;
    Qt::KeyboardModifiers held;
    for (qsizetype position = 0; position < keys.size();) {
        if (const auto modifier = modifierOf(keys.at(position)); modifier != Qt::NoModifier) {
            held |= modifier;
            ++position;
            continue;
        }
        strokes.push_back(strokeOf(keyAt(keys, position), held));
        if (strokes.back().key == 0) refuse(keys);
        held = {};
    }
    if (held != Qt::NoModifier) refuse(keys);
    return strokes;
}
} // namespace

void SendKeys(const QString &keys)
{
    for (const Stroke &stroke : strokesOf(keys)) {
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QWidget *target = QApplication::focusWidget();
            if (!target) return;
            QKeyEvent event(type, stroke.key, stroke.modifiers, stroke.text);
            QApplication::sendEvent(target, &event);
        }
    }
}

void DoEvents()
{
    QCoreApplication::processEvents();
}

} // namespace orvane
