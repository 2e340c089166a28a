// A document as it is laid out page by page: the pages so far, the place where the next thing comes, and the two bands
// of each page.
//
// A page comes up with the first thing that is put on it, takes the setup of that moment, and raises its header band
// right then; its footer band comes with the page's end. Without a document nothing is recorded, and nothing fails.
#pragma once

#include "platform/print/pages/RecordedPage.h"

#include <functional>

namespace orvane
{

class Recording
{
public:
    // What is run while a header or footer band comes up. It may put things on the page but neither begin nor end one:
    // that is refused with error 5.
    Recording(std::function<void()> header, std::function<void()> footer);

    void start();
    void finish();
    bool isOpen() const { return m_open; }

    PageSetup &nextSetup() { return m_next; } // of the page that comes up next
    const PageSetup &setup() const;           // of the page in the works, or else of the next
    bool inBand() const { return m_inBand; }

    void newPage(); // ends the page in the works, which may be blank, and brings up another
    void put(PageItem item);
    bool bringUpPage(); // false without a document

    std::shared_ptr<const RecordedPages> pages() const { return m_pages; }
    int count() const { return static_cast<int>(m_pages->size()); } // the page in the works included

    QPointF place; // twips from the paper's corner; at the body's top left when the header band is done

private:
    void runBand(const std::function<void()> &band);
    void endPage();
    void refuseInBand() const;

    std::function<void()> m_header;
    std::function<void()> m_footer;
    std::shared_ptr<RecordedPages> m_pages = std::make_shared<RecordedPages>();
    PageSetup m_next;
    bool m_open = false;
    bool m_pageUp = false;
    bool m_inBand = false;
};

} // namespace orvane
