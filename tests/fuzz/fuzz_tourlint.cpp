// The input is a tour script. Whatever it holds, the look through it ends, and every finding is in one of its lines.
#include "tourlint/TourLint.h"

#include <QTemporaryFile>
#include <cstdint>
#include <cstdlib>

using namespace orvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    QTemporaryFile file;
    if (!file.open() || file.write(bytes) != bytes.size() || !file.flush()) return 0;
    int before = 1;
    for (const lint::Finding &finding : lint::lookThrough(file.fileName(), lint::Extent::Whole)) {
        if (finding.line < before || finding.line > bytes.count('\n') + 1 || finding.message.isEmpty()) std::abort();
        before = finding.line;
    }
    return 0;
}
