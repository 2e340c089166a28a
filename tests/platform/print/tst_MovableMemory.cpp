// Movable memory by handles and locks.
#include "platform/print/dialog/MovableMemory.h"

#include <QTest>
#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

using namespace orvane;

namespace
{
constexpr std::size_t Size = 12;
constexpr quint32 UnknownHandle = 0xFFFFFFFF;
} // namespace

class tst_MovableMemory : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aNewBlockIsZeroFilled();
    void aBlockKeepsItsBytesBetweenLocks();
    void aBlockStaysLockedUntilEachLockIsTakenBack();
    void aBlockThatIsNotLockedCantBeUnlocked();
    void aFreedBlockIsUnknown();
    void aLockedBlockCanBeFreed();
    void aBlockIsFreedOnce();
    void unknownHandlesAreFailures_data();
    void unknownHandlesAreFailures();
    void aBlockWithoutBytesHasNoAddress();
    void aBlockThatFindsNoRoomHasNoHandle();
    void handlesAreNeverGivenTwice();
    void bytesAreMovedBetweenBlockAndRecord();
    void nothingIsWrittenBeyondABlock();
    void nothingIsReadBeyondABlock();
    void aMoveFromTheMiddleEndsWithTheBlock();
    void overlappingRangesAreMovedWhole();
    void aMoveOfNothingNeedsNoAddress();

private:
    std::size_t m_before = 0;
};

void tst_MovableMemory::init()
{
    m_before = movableBlocks();
}

void tst_MovableMemory::cleanup()
{
    QCOMPARE(movableBlocks(), m_before);
}

void tst_MovableMemory::aNewBlockIsZeroFilled()
{
    const quint32 handle = GlobalAlloc(MovableZeroFilled, Size);
    QVERIFY(handle != 0);
    QCOMPARE(GlobalSize(handle), Size);
    const auto *bytes = static_cast<const char *>(GlobalLock(handle));
    QVERIFY(std::all_of(bytes, bytes + Size, [](char byte) { return byte == 0; }));
    QVERIFY(!GlobalUnlock(handle));
    QCOMPARE(GlobalFree(handle), 0U);
}

void tst_MovableMemory::aBlockKeepsItsBytesBetweenLocks()
{
    const quint32 handle = GlobalAlloc(MovableZeroFilled, Size);
    std::memset(GlobalLock(handle), 'x', Size);
    GlobalUnlock(handle);
    QCOMPARE(QByteArray(static_cast<const char *>(GlobalLock(handle)), Size), QByteArray(Size, 'x'));
    GlobalUnlock(handle);
    GlobalFree(handle);
}

void tst_MovableMemory::aBlockStaysLockedUntilEachLockIsTakenBack()
{
    const quint32 handle = GlobalAlloc(MovableZeroFilled, Size);
    QCOMPARE(GlobalLock(handle), GlobalLock(handle));
    QVERIFY(GlobalUnlock(handle));
    QVERIFY(!GlobalUnlock(handle));
    GlobalFree(handle);
}

void tst_MovableMemory::aBlockThatIsNotLockedCantBeUnlocked()
{
    const quint32 handle = GlobalAlloc(MovableZeroFilled, Size);
    QVERIFY(!GlobalUnlock(handle));
    QVERIFY(GlobalLock(handle));
    QVERIFY(!GlobalUnlock(handle)); // the count didn't go below none
    GlobalFree(handle);
}

void tst_MovableMemory::aFreedBlockIsUnknown()
{
    const quint32 handle = GlobalAlloc(MovableZeroFilled, Size);
    GlobalFree(handle);
    QVERIFY(!GlobalLock(handle));
    QVERIFY(!GlobalUnlock(handle));
    QCOMPARE(GlobalSize(handle), std::size_t(0));
}

void tst_MovableMemory::aLockedBlockCanBeFreed()
{
    const quint32 handle = GlobalAlloc(MovableZeroFilled, Size);
    QVERIFY(GlobalLock(handle));
    QCOMPARE(GlobalFree(handle), 0U);
    QCOMPARE(movableBlocks(), m_before);
}

void tst_MovableMemory::aBlockIsFreedOnce()
{
    const quint32 handle = GlobalAlloc(MovableZeroFilled, Size);
    QCOMPARE(GlobalFree(handle), 0U);
    QCOMPARE(GlobalFree(handle), handle);
}

void tst_MovableMemory::unknownHandlesAreFailures_data()
{
    QTest::addColumn<quint32>("handle");
    QTest::newRow("none") << 0U;
    QTest::newRow("never given") << UnknownHandle;
}

void tst_MovableMemory::unknownHandlesAreFailures()
{
    QFETCH(const quint32, handle);
    QVERIFY(!GlobalLock(handle));
    QVERIFY(!GlobalUnlock(handle));
    QCOMPARE(GlobalFree(handle), handle);
    QCOMPARE(GlobalSize(handle), std::size_t(0));
}

void tst_MovableMemory::aBlockWithoutBytesHasNoAddress()
{
    const quint32 handle = GlobalAlloc(MovableZeroFilled, 0);
    QVERIFY(handle != 0);
    QVERIFY(!GlobalLock(handle));
    QCOMPARE(GlobalFree(handle), 0U);
}

void tst_MovableMemory::aBlockThatFindsNoRoomHasNoHandle()
{
#ifdef __SANITIZE_ADDRESS__
    QSKIP("the sanitizer ends a program that asks for so much");
#endif
    QCOMPARE(GlobalAlloc(MovableZeroFilled, std::numeric_limits<std::size_t>::max() / 4), 0U);
}

void tst_MovableMemory::handlesAreNeverGivenTwice()
{
    const quint32 first = GlobalAlloc(MovableZeroFilled, Size);
    GlobalFree(first);
    const quint32 second = GlobalAlloc(MovableZeroFilled, Size);
    QVERIFY(first != second);
    GlobalFree(second);
}

void tst_MovableMemory::bytesAreMovedBetweenBlockAndRecord()
{
    const std::array<char, Size> record{"eleven  txt"};
    std::array<char, Size> copy{};
    const quint32 handle = GlobalAlloc(MovableZeroFilled, Size);
    RtlMoveMemory(GlobalLock(handle), record.data(), Size);
    GlobalUnlock(handle);
    RtlMoveMemory(copy.data(), GlobalLock(handle), Size);
    GlobalUnlock(handle);
    GlobalFree(handle);
    QCOMPARE(copy, record);
}

void tst_MovableMemory::nothingIsWrittenBeyondABlock()
{
    const std::array<char, 2 * Size> record{"more than a block holds"};
    const quint32 handle = GlobalAlloc(MovableZeroFilled, Size);
    void *block = GlobalLock(handle);
    RtlMoveMemory(block, record.data(), record.size()); // the sanitizer looks on
    QCOMPARE(std::memcmp(block, record.data(), Size), 0);
    GlobalFree(handle);
}

void tst_MovableMemory::nothingIsReadBeyondABlock()
{
    std::array<char, 2 * Size> record;
    record.fill('-');
    const quint32 handle = GlobalAlloc(MovableZeroFilled, Size);
    std::memset(GlobalLock(handle), 'x', Size);
    RtlMoveMemory(record.data(), GlobalLock(handle), record.size());
    QCOMPARE(QByteArray(record.data(), record.size()), QByteArray(Size, 'x') + QByteArray(Size, '-'));
    GlobalFree(handle);
}

void tst_MovableMemory::aMoveFromTheMiddleEndsWithTheBlock()
{
    std::array<char, Size> record;
    record.fill('-');
    const quint32 handle = GlobalAlloc(MovableZeroFilled, Size);
    auto *block = static_cast<char *>(GlobalLock(handle));
    std::memset(block, 'x', Size);
    RtlMoveMemory(record.data(), block + Size - 1, Size);
    QCOMPARE(QByteArray(record.data(), Size), "x" + QByteArray(Size - 1, '-'));
    GlobalFree(handle);
}

void tst_MovableMemory::overlappingRangesAreMovedWhole()
{
    const quint32 handle = GlobalAlloc(MovableZeroFilled, Size);
    auto *block = static_cast<char *>(GlobalLock(handle));
    std::copy_n("abcdef", 6, block);
    RtlMoveMemory(block + 2, block, 6);
    QCOMPARE(QByteArray(block, 8), QByteArray("ababcdef"));
    GlobalFree(handle);
}

void tst_MovableMemory::aMoveOfNothingNeedsNoAddress()
{
    std::array<char, 1> record{'-'};
    RtlMoveMemory(nullptr, record.data(), 0);
    RtlMoveMemory(record.data(), nullptr, 0);
    QCOMPARE(record[0], '-');
}

QTEST_GUILESS_MAIN(tst_MovableMemory)
#include "tst_MovableMemory.moc"
