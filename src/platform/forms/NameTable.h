// What a window offers to callers that know it only by names: handlers to call, and controls to take hold of.
#pragma once

#include <QString>
#include <functional>
#include <map>

namespace orvane
{

class Tool;

// The arguments of a call by name: what the handlers of windows take.
struct CallArguments {
    Tool *tool = nullptr;
    int button = 0;
    int shift = 0;
    float x = 0;
    float y = 0;
};

class NameTable
{
public:
    using Handler = std::function<void(const CallArguments &)>;

    void add(const QString &name, Handler handler);
    void call(const QString &name, const CallArguments &arguments = {}) const; // an unknown name: error 438

private:
    std::map<QString, Handler> m_handlers;
};

} // namespace orvane
