#include "platform/forms/NameTable.h"

#include "platform/system/RunTimeError.h"

namespace orvane
{

void NameTable::add(const QString &name, Handler handler)
{
    m_handlers.insert_or_assign(name, std::move(handler));
}

void NameTable::call(const QString &name, const CallArguments &arguments) const
{
    const auto found = m_handlers.find(name);
    if (found == m_handlers.end())
        throw RunTimeError(NoSuchMember, QStringLiteral("The window has nothing that is called \"%1\".").arg(name));
    found->second(arguments);
}

} // namespace orvane
