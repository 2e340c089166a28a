#include "platform/controls/bars/BarStrip.h"

#include "platform/controls/AccessKey.h"
#include "platform/controls/Palette.h"
#include "platform/controls/bars/ActiveBar.h"
#include "platform/controls/bars/BarLooks.h"
#include "platform/controls/bars/BarMenu.h"
#include "platform/controls/bars/ToolButton.h"
#include "platform/controls/bars/ToolField.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QShowEvent>
#include <algorithm>

namespace orvane
{

namespace
{
constexpr int Margin = 2;
constexpr int Gap = 1;      // between tools
constexpr int GroupGap = 9; // between groups; the line stands in its middle
constexpr int MostHeight = 26;
} // namespace

void BarStrip::showBar(ActiveBar &bar)
{
    m_bar = &bar;
    setAccessibleName(bar.Bands(0).Caption());
    m_more = new ToolButton(this);
    m_more->setObjectName(QStringLiteral("more"));
    m_more->setText(QStringLiteral(">>"));
    m_more->setAccessibleName(QStringLiteral("More tools"));
    m_more->setToolTip(m_more->accessibleName());
    const ToolSource source{m_more->objectName(), m_more->accessibleName(), [this] { return rest(); }};
    m_more->setFlyout(new BarMenu(bar, source, m_more));
    watchButton(*m_more);
    connect(&bar, &ActiveBar::Changed, this, &BarStrip::follow);
    follow();
}

void BarStrip::watchButton(ToolButton &button)
{
    button.installEventFilter(this);
    connect(&button, &ToolButton::flyoutAsked, this, [this, &button] { openFlyout(button); });
}

void BarStrip::follow()
{
    keepItems();
    std::vector<QKeySequence> taken;
    for (const Place &place : m_places) {
        const auto tool = place.tool.lock();
        const QKeySequence key = QKeySequence::mnemonic(shownCaption(*tool));
        const bool free = !key.isEmpty() && std::ranges::find(taken, key) == taken.end() && accessKeyIsFree(key, *this);
        if (free) taken.push_back(key);
        place.item->follow(*tool, free);
    }
    arrange();
    tellHover();
}

// A tool that stays keeps its button, with the focus that it may have.
void BarStrip::keepItems()
{
    std::vector<Place> places;
    for (const auto &tool : m_bar->Bands(0).Tools()) {
        const auto kept = std::ranges::find(m_places, tool, [](const Place &place) { return place.tool.lock(); });
        StripItem *item = kept == m_places.end() ? newItem(tool) : kept->item;
        if (kept != m_places.end()) m_places.erase(kept);
        places.push_back({tool, item, tool->GroupStart()});
    }
    for (const Place &left : m_places)
        dropItem(*left.item);
    m_places = std::move(places);
}

StripItem *BarStrip::newItem(const std::shared_ptr<Tool> &tool)
{
    const auto press = [this, tool = std::weak_ptr(tool)] {
        if (const auto pressed = tool.lock()) m_bar->press(*pressed);
    };
    if (!tool->isField()) {
        ToolButton *button = newButton(*tool);
        connect(button, &ToolButton::chosen, this, press);
        return button;
    }
    auto *field = new ToolField(*m_bar, tool, this);
    field->installEventFilter(this);
    field->focusTarget().installEventFilter(this);
    connect(field, &ToolField::chosen, this, press);
    return field;
}

ToolButton *BarStrip::newButton(const Tool &tool)
{
    auto *button = new ToolButton(this);
    button->setObjectName(tool.Name());
    button->setIcon(toolIcon(tool));
    if (!tool.Flyout().isEmpty()) button->setFlyout(new BarMenu(*m_bar, sourceOf(m_bar->Bands(tool.Flyout())), button));
    watchButton(*button);
    return button;
}

// Later, since the button of a tool that is removed by its own Click is still at work.
void BarStrip::dropItem(StripItem &item)
{
    item.widget().hide();
    item.widget().setParent(nullptr);
    item.widget().deleteLater();
}

QSize BarStrip::sizeHint() const
{
    int width = 2 * Margin;
    for (const StripPiece &piece : pieces())
        width += piece.gap + piece.full;
    return {width, m_more->sizeHint().height() + 2 * Margin};
}

std::vector<StripPiece> BarStrip::pieces() const
{
    std::vector<StripPiece> pieces;
    for (const Place &place : m_places)
        pieces.push_back({place.groupStart ? GroupGap : Gap, place.item->widthFor(false), place.item->widthFor(true)});
    return pieces;
}

void BarStrip::arrange()
{
    const std::vector<StripPiece> all = pieces();
    const StripFit fit = fitStrip(all, width() - 2 * Margin, m_more->widthFor(false) + Gap);
    m_lines.clear();
    m_shown = fit.shown;
    QRect room(Margin, Margin, 0, std::min(height() - 2 * Margin, MostHeight));
    room.moveTop((height() - room.height()) / 2);
    for (size_t i = 0; i < all.size(); ++i) {
        QWidget &widget = m_places[i].item->widget();
        m_places[i].item->setCompact(fit.compact[i]);
        widget.setVisible(i < fit.shown);
        if (i >= fit.shown) continue;
        if (i > 0) room.translate(all[i].gap, 0);
        if (i > 0 && m_places[i].groupStart) m_lines.push_back(room.left() - GroupGap / 2 - 1);
        room.setWidth(fit.compact[i] ? all[i].compact : all[i].full);
        widget.setGeometry(room);
        room.translate(room.width(), 0);
    }
    m_more->setVisible(fit.shown < all.size());
    room.setWidth(m_more->widthFor(false));
    m_more->setGeometry(room.translated(Gap, 0));
    update();
}

std::vector<std::shared_ptr<Tool>> BarStrip::rest() const
{
    std::vector<std::shared_ptr<Tool>> tools;
    for (size_t i = m_shown; i < m_places.size(); ++i)
        if (auto tool = m_places[i].tool.lock()) tools.push_back(std::move(tool));
    return tools;
}

void BarStrip::openFlyout(ToolButton &button)
{
    const QPointer<ActiveBar> bar = m_bar;
    const QPointer<ToolButton> opener = &button;
    button.setDown(true);
    const auto chosen = static_cast<BarMenu *>(button.menu())->choose(dropPlaceAt(button));
    if (opener) opener->menuClosed();
    if (bar && chosen) bar->press(*chosen);
}

bool BarStrip::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        tellHover();
        break;
    case QEvent::KeyPress:
        if (const auto *button = qobject_cast<ToolButton *>(watched)) {
            const int key = static_cast<QKeyEvent *>(event)->key();
            if (key == Qt::Key_Left || key == Qt::Key_Right) return moveFocus(*button, key == Qt::Key_Left ? -1 : 1);
        }
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

bool BarStrip::moveFocus(const QWidget &from, int step)
{
    std::vector<QWidget *> targets;
    for (const Place &place : m_places)
        targets.push_back(&place.item->focusTarget());
    targets.push_back(m_more);
    std::erase_if(targets, [](const QWidget *target) { return !target->isVisible() || !target->isEnabled(); });
    const auto present = std::ranges::find(targets, &from) - targets.begin();
    const auto next = present + step;
    if (next >= 0 && next < std::ssize(targets)) targets[static_cast<size_t>(next)]->setFocus(Qt::TabFocusReason);
    return true;
}

void BarStrip::tellHover()
{
    if (!m_bar) return;
    const auto find = [this](auto isPointed) -> std::shared_ptr<Tool> {
        const auto found = std::ranges::find_if(m_places, isPointed);
        return found == m_places.end() ? nullptr : found->tool.lock();
    };
    auto tool = find([](const Place &place) { return place.item->widget().underMouse(); });
    if (!tool) tool = find([](const Place &place) { return place.item->focusTarget().hasFocus(); });
    m_bar->hover(tool ? tool->Description() : QString());
}

void BarStrip::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (m_bar) arrange();
}

// The window that the strip has come to may have other access keys than the one in which it was made.
void BarStrip::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!m_bar) return;
    if (!event->spontaneous()) comeLast();
    follow();
}

// Tab reaches a bar after what the window is for, and a window that opens doesn't give it the focus.
void BarStrip::comeLast()
{
    const QWidget &scope = innerWindowOf(*this);
    QWidget *last = nullptr;
    for (QWidget *next = scope.nextInFocusChain(); next != &scope; next = next->nextInFocusChain())
        if (scope.isAncestorOf(next) && !isAncestorOf(next) && next->focusPolicy() & Qt::TabFocus) last = next;
    if (!last) return;
    for (const Place &place : m_places) {
        setTabOrder(last, &place.item->focusTarget());
        last = &place.item->focusTarget();
    }
    setTabOrder(last, m_more);
}

void BarStrip::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette::Mist);
    painter.setPen(palette::Line);
    for (const int line : m_lines)
        painter.drawLine(line, 2 * Margin, line, height() - 2 * Margin - 1);
}

} // namespace orvane
