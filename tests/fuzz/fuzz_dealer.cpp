// The input as a dealer's file and as a text of UTF-8: each comes back or is refused.
#include "platform/system/CodePage1252.h"
#include "platform/system/RunTimeError.h"
#include "tour/DealerText.h"

#include <cstdint>
#include <cstdlib>
#include <optional>

using namespace orvane;

namespace
{

void check(bool holds)
{
    if (!holds) std::abort();
}

template <typename Call>
auto unlessRefused(Call call) -> std::optional<decltype(call())>
{
    try {
        return call();
    } catch (const RunTimeError &refusal) {
        check(refusal.Number() == InvalidProcedureCall);
        return std::nullopt;
    }
}

// The last code of the page is nowhere written by the inverse.
void checkData(const QByteArray &data)
{
    const auto text = unlessRefused([&] { return UnscrambleDealerData(CodePage1252::decode(data)); });
    if (!text) return;
    check(text->size() == data.size());
    const auto back = unlessRefused([&] { return ScrambleDealerData(*text); });
    check(data.contains('\xFF') || back == data);
}

void checkText(const QString &text)
{
    const auto data = unlessRefused([&] { return ScrambleDealerData(text); });
    check(!data || UnscrambleDealerData(CodePage1252::decode(*data)) == text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    checkData(bytes);
    checkText(CodePage1252::decode(bytes));
    checkText(QString::fromUtf8(bytes));
    return 0;
}
