// The walk through the live program by the console's own Next button, from the splash to the end.
#pragma once

#include "HandOut.h"
#include "WalkHost.h"

namespace orvane
{

class frmDemo;

namespace walk
{

class Walk
{
public:
    Walk(WalkHost &host, HandOut &handOut) : m_host(host), m_handOut(handOut) {}

    // True where the walk came to the end of the tour, which is still on show then.
    bool run();
    void quit(); // the end's own button; the program has to end without a failure
    int steps() const { return m_steps; }

private:
    void showIntro();
    void takeStep(const frmDemo &console);
    bool goOn(const frmDemo &console);
    void takeMessages();

    WalkHost &m_host;
    HandOut &m_handOut;
    int m_steps = 0;
};

} // namespace walk
} // namespace orvane
