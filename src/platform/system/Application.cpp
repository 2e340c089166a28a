#include "platform/system/Application.h"

#include "platform/system/Host.h"

namespace orvane
{

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
