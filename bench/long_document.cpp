#include "LongDocument.h"

#include <cstdio>

int main()
{
    constexpr int Paragraphs = 1500;
    std::fputs(qPrintable(bench::longRtf(Paragraphs)), stdout);
}
