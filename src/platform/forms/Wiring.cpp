#include "platform/forms/Wiring.h"

namespace orvane
{

ActiveBar &barOf(Form &form, const QString &name)
{
    auto *bar = dynamic_cast<ActiveBar *>(form.control(name));
    if (!bar)
        throw RunTimeError(NoSuchMember, QStringLiteral("The window \"%1\" has no bar \"%2\".").arg(form.Name(), name));
    return *bar;
}

} // namespace orvane
