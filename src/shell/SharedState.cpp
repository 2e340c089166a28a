#include "shell/SharedState.h"

namespace orvane
{

SharedState &Shared()
{
    static SharedState state;
    return state;
}

} // namespace orvane
