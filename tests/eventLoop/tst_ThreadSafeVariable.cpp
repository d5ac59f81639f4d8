// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/eventLoop/ThreadSafeVariable.h"

#include <QtCore/QSemaphore>
#include <QtCore/QString>
#include <QtTest/QTest>

#include <atomic>
#include <functional>
#include <thread>
#include <vector>

namespace {

/*! A value that calls back while it is being copied or assigned, that is under its variable's lock. */
class Probe
{
public:
    Probe() = default;
    explicit Probe(int number)
        : m_number(number)
    {
    }
    Probe(const Probe &other)
        : m_number(other.m_number)
        , m_onCopy(other.m_onCopy)
    {
        if (m_onCopy) {
            m_onCopy();
        }
    }
    Probe(Probe &&other) noexcept = default;
    Probe &operator=(const Probe &other) = default;
    Probe &operator=(Probe &&other) noexcept = default;
    ~Probe() = default;

    Probe withCallback(std::function<void()> onCopy) &&
    {
        m_onCopy = std::move(onCopy);
        return std::move(*this);
    }

    int number() const
    {
        return m_number;
    }

private:
    int m_number = 0;
    std::function<void()> m_onCopy;
};

/*! Its parts always agree, unless half of it is read. */
struct Pair
{
    int number = 0;
    int opposite = 0;
};

} // namespace

class tst_ThreadSafeVariable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructor_withoutValue_takesTheDefault();
    void setValue_isRead();
    void copy_hasTheValueButIsIndependent();
    void copy_hasALockOfItsOwn();
    void assignment_copiesTheValueAndKeepsTheLock();
    void assignment_toItself_keepsTheValue();
    void value_onSeveralThreadsAtOnce_isNotHeldUp();
    void value_whileReadingOnTheSameThread_isNotHeldUp();
    void value_whileReadingOnTheSameThread_isNotHeldUpByAWaitingWriter();
    void setValue_waitsForAReader();
    void value_whileOthersWrite_isNeverHalfWritten();
};

void tst_ThreadSafeVariable::constructor_withoutValue_takesTheDefault()
{
    QCOMPARE(ThreadSafeVariable<bool>().value(), false);
    QCOMPARE(ThreadSafeVariable<int>().value(), 0);
    QCOMPARE(ThreadSafeVariable<QString>().value(), QString());
    QCOMPARE(ThreadSafeVariable<bool>(true).value(), true);
}

void tst_ThreadSafeVariable::setValue_isRead()
{
    ThreadSafeVariable<QString> variable(u"first"_qs);
    QCOMPARE(variable.value(), u"first"_qs);
    variable.setValue(u"second"_qs);
    QCOMPARE(variable.value(), u"second"_qs);
}

void tst_ThreadSafeVariable::copy_hasTheValueButIsIndependent()
{
    ThreadSafeVariable<int> original(1);
    ThreadSafeVariable<int> copy(original);
    QCOMPARE(copy.value(), 1);
    original.setValue(2);
    QCOMPARE(copy.value(), 1);
    copy.setValue(3);
    QCOMPARE(original.value(), 2);
}

void tst_ThreadSafeVariable::copy_hasALockOfItsOwn()
{
    ThreadSafeVariable<Probe> original(Probe(1));
    ThreadSafeVariable<Probe> copy(original);
    QSemaphore isReading;
    QSemaphore goOn;
    original.setValue(Probe(2).withCallback([&] {
        isReading.release();
        goOn.acquire();
    }));

    std::thread reader([&original] { original.value(); });
    isReading.acquire();
    copy.setValue(Probe(3)); // would hang if it shared the lock that is held for reading
    const int number = copy.value().number();
    goOn.release();
    reader.join();
    QCOMPARE(number, 3);
}

void tst_ThreadSafeVariable::assignment_copiesTheValueAndKeepsTheLock()
{
    ThreadSafeVariable<Probe> original(Probe(1));
    ThreadSafeVariable<Probe> other(Probe(5));
    other = original;
    QCOMPARE(other.value().number(), 1);
    QSemaphore isReading;
    QSemaphore goOn;
    original.setValue(Probe(2).withCallback([&] {
        isReading.release();
        goOn.acquire();
    }));

    std::thread reader([&original] { original.value(); });
    isReading.acquire();
    other.setValue(Probe(3));
    const int number = other.value().number();
    goOn.release();
    reader.join();
    QCOMPARE(number, 3);
}

void tst_ThreadSafeVariable::assignment_toItself_keepsTheValue()
{
    ThreadSafeVariable<QString> variable(u"kept"_qs);
    const ThreadSafeVariable<QString> &same = variable;
    variable = same;
    QCOMPARE(variable.value(), u"kept"_qs);
}

void tst_ThreadSafeVariable::value_onSeveralThreadsAtOnce_isNotHeldUp()
{
    QSemaphore arrived;
    QSemaphore goOn;
    const ThreadSafeVariable<Probe> variable(Probe(1).withCallback([&] {
        arrived.release();
        goOn.acquire();
    }));
    const auto read = [&variable] { variable.value(); };
    std::thread first(read);
    std::thread second(read);
    arrived.acquire(2); // would hang if only one at a time could read
    goOn.release(2);
    first.join();
    second.join();
}

void tst_ThreadSafeVariable::value_whileReadingOnTheSameThread_isNotHeldUp()
{
    ThreadSafeVariable<Probe> variable;
    int depth = 0;
    int innerNumber = 0;
    variable.setValue(Probe(4).withCallback([&] {
        if (++depth == 1) {
            innerNumber = variable.value().number();
        }
    }));
    QCOMPARE(variable.value().number(), 4);
    QCOMPARE(innerNumber, 4);
    QCOMPARE(depth, 2);
}

void tst_ThreadSafeVariable::value_whileReadingOnTheSameThread_isNotHeldUpByAWaitingWriter()
{
    ThreadSafeVariable<Probe> variable;
    std::atomic_bool hasWritten = false;
    bool wasHeldUp = false;
    std::thread writer;
    int depth = 0;
    int numbersSeen = 0;
    variable.setValue(Probe(4).withCallback([&] {
        if (++depth > 1) {
            return;
        }
        QSemaphore isWriting;
        writer = std::thread([&] {
            isWriting.release();
            variable.setValue(Probe(5));
            hasWritten = true;
        });
        isWriting.acquire();
        for (int i = 0; i < 1000; ++i) { // some of them while the writer waits
            numbersSeen += variable.value().number();
            std::this_thread::yield();
        }
        wasHeldUp = !hasWritten;
    }));
    const int number = variable.value().number();
    writer.join();
    QCOMPARE(number, 4);
    QVERIFY(wasHeldUp);
    QCOMPARE(numbersSeen, 4000);
    QCOMPARE(variable.value().number(), 5);
}

void tst_ThreadSafeVariable::setValue_waitsForAReader()
{
    ThreadSafeVariable<Probe> variable;
    QSemaphore isReading;
    QSemaphore goOn;
    std::atomic_bool isReadOver = false;
    bool wasReadOver = false;
    variable.setValue(Probe(1).withCallback([&] {
        isReading.release();
        goOn.acquire();
        isReadOver = true;
    }));
    std::thread reader([&variable] { variable.value(); });
    isReading.acquire();
    std::thread writer([&] {
        goOn.release();
        variable.setValue(Probe(2));
        wasReadOver = isReadOver;
    });
    reader.join();
    writer.join();
    QVERIFY(wasReadOver);
    QCOMPARE(variable.value().number(), 2);
}

void tst_ThreadSafeVariable::value_whileOthersWrite_isNeverHalfWritten()
{
    constexpr int rounds = 5000;
    ThreadSafeVariable<Pair> variable;
    std::atomic_int broken = 0;
    std::atomic_int reads = 0;
    std::vector<std::thread> threads;
    for (int writer = 1; writer <= 2; ++writer) {
        threads.emplace_back([&variable, writer] {
            for (int i = 1; i <= rounds; ++i) {
                variable.setValue({writer * i, -writer * i});
            }
        });
        threads.emplace_back([&] {
            for (int i = 0; i < rounds; ++i) {
                const Pair pair = variable.value();
                broken += pair.number != -pair.opposite ? 1 : 0;
                ++reads;
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    QCOMPARE(broken.load(), 0);
    QCOMPARE(reads.load(), 2 * rounds);
    const int last = variable.value().number;
    QVERIFY(last == rounds || last == 2 * rounds);
}

QTEST_APPLESS_MAIN(tst_ThreadSafeVariable)

#include "tst_ThreadSafeVariable.moc"
