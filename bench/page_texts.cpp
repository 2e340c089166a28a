// page_texts FOLDER: leaves every page and every module's document as rich text, each in a file of its own.
#include "documents/pages/GuidePages.h"
#include "documents/pages/ManualPages.h"
#include "documents/pages/PrintedPages.h"
#include "documents/pages/ProcedurePages.h"
#include "documents/pages/ToolPages.h"

#include <QFile>
#include <array>
#include <cstdio>

using namespace orvane::pages;

namespace
{

struct PageText {
    const char *name;
    QString (*text)();
};

constexpr std::array Pages{PageText{"guide1", guideSection1},
                           PageText{"guide2", guideSection2},
                           PageText{"guide3", guideSection3},
                           PageText{"guide4", guideSection4},
                           PageText{"requirement", stepRequirement},
                           PageText{"procedure", stepProcedure},
                           PageText{"implementation", stepImplementation},
                           PageText{"tips", stepTips},
                           PageText{"module1", printedGuide},
                           PageText{"module2", printedManual},
                           PageText{"module3", printedProcedure},
                           PageText{"module4", printedTool}};

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 2) {
        std::fputs("usage: page_texts FOLDER\n", stderr);
        return 2;
    }
    for (const PageText &page : Pages) {
        QFile file(QStringLiteral("%1/%2.rtf").arg(QFile::decodeName(argv[1]), QLatin1StringView(page.name)));
        if (!file.open(QFile::WriteOnly) || file.write(page.text().toLatin1()) <= 0) return 1;
    }
    return 0;
}
