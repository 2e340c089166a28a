// The record pictures as they have to be, and a bitmap file taken apart.
#pragma once

#include <QFile>
#include <QList>
#include <QString>
#include <QtEndian>

namespace orvane::test
{

struct RecordBitmap {
    QString name;
    int height;   // pixels; all are 760 wide
    qint64 bytes; // of the file
};

inline const QList<RecordBitmap> &recordBitmaps()
{
    static const QList<RecordBitmap> bitmaps{
        {QStringLiteral("picRCF"), 1177, 895276}, {QStringLiteral("picRCB"), 1177, 895300},
        {QStringLiteral("picf1"), 579, 440796},   {QStringLiteral("picf2"), 600, 456756},
        {QStringLiteral("picb1"), 586, 446140},   {QStringLiteral("picb2"), 592, 450700},
        {QStringLiteral("picf1a"), 582, 443012},  {QStringLiteral("picb1a"), 582, 443032}};
    return bitmaps;
}

inline QByteArray bytesOfFile(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The number that stands in the file at that place.
template <class Number>
Number numberAt(const QByteArray &bytes, qsizetype place)
{
    if (place + qsizetype(sizeof(Number)) > bytes.size()) return {};
    return qFromLittleEndian<Number>(bytes.constData() + place);
}

} // namespace orvane::test
