#include "platform/print/pages/Recording.h"

#include "platform/system/RunTimeError.h"

#include <QScopedValueRollback>

namespace orvane
{

Recording::Recording(std::function<void()> header, std::function<void()> footer)
    : m_header(std::move(header)), m_footer(std::move(footer))
{
}

void Recording::refuseInBand() const
{
    if (m_inBand)
        throw RunTimeError(InvalidProcedureCall, QStringLiteral("A band can't begin or end a page or a document."));
}

// Whoever shows the document before keeps its pages.
void Recording::start()
{
    refuseInBand();
    m_pages = std::make_shared<RecordedPages>();
    m_open = true;
    m_pageUp = false;
    place = m_next.body().topLeft();
}

void Recording::finish()
{
    refuseInBand();
    endPage();
    m_open = false;
}

const PageSetup &Recording::setup() const
{
    return m_pageUp ? m_pages->back().setup : m_next;
}

void Recording::newPage()
{
    refuseInBand();
    if (!bringUpPage()) return;
    endPage();
    bringUpPage();
}

void Recording::put(PageItem item)
{
    if (bringUpPage()) m_pages->back().items.push_back(std::move(item));
}

bool Recording::bringUpPage()
{
    if (!m_open || m_pageUp) return m_open;
    m_pages->push_back({m_next, {}});
    m_pageUp = true;
    const QPointF start = m_next.body().topLeft();
    place = start;
    runBand(m_header);
    place = start;
    return true;
}

void Recording::endPage()
{
    if (!m_pageUp) return;
    runBand(m_footer);
    m_pageUp = false;
}

void Recording::runBand(const std::function<void()> &band)
{
    const QScopedValueRollback inBand(m_inBand, true);
    band();
}

} // namespace orvane
