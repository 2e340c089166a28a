#include "platform/controls/pictures/ProgramMark.h"

namespace orvane
{

QIcon programMark()
{
    return QIcon(QStringLiteral(":/pictures/mark.svg"));
}

QIcon smallProgramMark()
{
    QIcon small;
    for (const int pixels : {16, 32})
        small.addPixmap(programMark().pixmap(pixels));
    return small;
}

} // namespace orvane
