#include "platform/system/Application.h"

#include "platform/system/Host.h"

namespace orvane
{

int Application::Major() const
{
    return ORVANE_VERSION_MAJOR;
}

int Application::Minor() const
{
    return ORVANE_VERSION_MINOR;
}

QString Application::Path() const
{
    return host().programFolder();
}

QString Application::fileBeside(const QString &name) const
{
    return Path() + QLatin1Char('/') + name;
}

Application &App()
{
    static Application application;
    return application;
}

} // namespace orvane
