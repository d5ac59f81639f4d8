// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/frame/Singleton.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QProcess>
#include <QtTest/QTest>

#include <array>
#include <atomic>
#include <barrier>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <set>
#include <thread>
#include <type_traits>
#include <vector>

namespace {

/*! Each number makes a class of its own, and so a first use of its own. */
template <int Number>
class Counted : public Singleton<Counted<Number>>
{
public:
    static inline std::atomic<int> built{0};

    Counted()
    {
        ++built;
        std::this_thread::yield(); // longer under construction: more threads find it so
        m_value = Number;
    }

    int value() const
    {
        return m_value;
    }

private:
    int m_value = -1; // not atomic: a thread that sees it half-built is a data race
};

class PrivatelyBuilt : public Singleton<PrivatelyBuilt>
{
public:
    int calls = 0;

private:
    friend class Singleton<PrivatelyBuilt>;
    PrivatelyBuilt() = default;
    ~PrivatelyBuilt() = default;
};

/*! Tells its life on the standard output. */
template <char Name>
class Talking : public Singleton<Talking<Name>>
{
public:
    Talking()
    {
        tell('+');
    }

    ~Talking()
    {
        tell('-');
    }

private:
    static void tell(char what)
    {
        std::printf("%c%c ", what, Name);
        std::fflush(stdout);
    }
};

/*! Uses another one while it is built. */
class Leaning : public Singleton<Leaning>
{
public:
    Leaning()
    {
        Talking<'c'>::instance();
        std::printf("+l ");
    }

    ~Leaning()
    {
        std::printf("-l ");
        std::fflush(stdout);
    }
};

/*! Too large for a corner of a piece of memory that is there already. */
class Large : public Singleton<Large>
{
public:
    std::array<char, 100'000> content{};
};

class Heir : public Singleton<Heir>
{
};

thread_local int allocationCount = 0; // calls of operator new

constexpr char talkArgument[] = "--talk";

int talk()
{
    std::printf("start ");
    Talking<'a'>::instance();
    Talking<'b'>::instance();
    Talking<'a'>::instance();
    Leaning::instance();
    std::printf("end ");
    return 0;
}

template <int Number>
void useFromManyThreads(std::set<const void *> &addresses, std::vector<int> &values)
{
    constexpr int threadCount = 16;
    std::barrier start(threadCount);
    std::vector<const Counted<Number> *> found(threadCount);
    std::vector<std::thread> threads;
    values.resize(threadCount);
    for (std::size_t i = 0; i < threadCount; ++i) {
        threads.emplace_back([&start, &found, &values, i] {
            start.arrive_and_wait();
            found[i] = &Counted<Number>::instance();
            values[i] = found[i]->value();
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    addresses.insert(found.cbegin(), found.cend());
}

template <int... Numbers>
void verifyEachBuiltOnce(std::integer_sequence<int, Numbers...> /*numbers*/)
{
    const auto verifyOne = []<int Number>(std::integral_constant<int, Number> /*number*/) {
        QCOMPARE(Counted<Number>::built.load(), 0);
        std::set<const void *> addresses;
        std::vector<int> values;
        useFromManyThreads<Number>(addresses, values);
        QCOMPARE(Counted<Number>::built.load(), 1);
        QCOMPARE(addresses.size(), std::size_t(1));
        QCOMPARE(values, std::vector<int>(values.size(), Number));
    };
    (verifyOne(std::integral_constant<int, Numbers>()), ...);
}

} // namespace

static_assert(!std::is_default_constructible_v<Singleton<Heir>>, "only heirs build it");
static_assert(!std::is_destructible_v<Singleton<Heir>>, "and destroy it");
static_assert(std::is_default_constructible_v<Heir> && std::is_destructible_v<Heir>);
static_assert(!std::is_copy_constructible_v<Heir> && !std::is_copy_assignable_v<Heir>);
static_assert(!std::is_move_constructible_v<Heir> && !std::is_move_assignable_v<Heir>);
static_assert(std::is_same_v<decltype(Heir::instance()), Heir &>);
static_assert(std::is_empty_v<Singleton<Heir>> && !std::is_polymorphic_v<Singleton<Heir>>);

// The instances are built by this program, so that its own functions are called everywhere.
void *operator new(std::size_t size)
{
    ++allocationCount;
    if (void *memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

class tst_Singleton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void instance_isBuiltByTheFirstCall();
    void instance_isAlwaysTheSameObject();
    void instance_liesInStaticStorage();
    void instance_onFirstUseFromManyThreads_isBuiltOnce();
    void instances_goAtProcessExitInReverseOrder();
};

void tst_Singleton::instance_isBuiltByTheFirstCall()
{
    QCOMPARE(Counted<-1>::built.load(), 0);
    Counted<-1>::instance();
    QCOMPARE(Counted<-1>::built.load(), 1);
    Counted<-1>::instance();
    QCOMPARE(Counted<-1>::built.load(), 1);
    QCOMPARE(Counted<-2>::built.load(), 0);
}

void tst_Singleton::instance_isAlwaysTheSameObject()
{
    PrivatelyBuilt::instance().calls = 1;
    ++PrivatelyBuilt::instance().calls;
    QCOMPARE(PrivatelyBuilt::instance().calls, 2);
    QCOMPARE(&PrivatelyBuilt::instance(), &PrivatelyBuilt::instance());
}

void tst_Singleton::instance_liesInStaticStorage()
{
    allocationCount = 0;
    void *const volatile taken = ::operator new(1); // volatile: no compiler leaves it out
    ::operator delete(taken);
    QCOMPARE(allocationCount, 1);

    allocationCount = 0;
    char *const first = Large::instance().content.data();
    QCOMPARE(allocationCount, 0); // built by that call, and not on the heap
    first[0] = 'x';
    QCOMPARE(Large::instance().content[0], 'x');
}

void tst_Singleton::instance_onFirstUseFromManyThreads_isBuiltOnce()
{
    verifyEachBuiltOnce(std::make_integer_sequence<int, 25>());
}

void tst_Singleton::instances_goAtProcessExitInReverseOrder()
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {QString::fromUtf8(talkArgument)});
    QVERIFY(process.waitForFinished(120'000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    // "c" was complete before "l", which used it while being built.
    QCOMPARE(QString::fromUtf8(process.readAllStandardOutput()), u"start +a +b +c +l end -l -c -b -a "_qs);
}

int main(int argc, char *argv[])
{
    if (argc > 1 && std::strcmp(argv[1], talkArgument) == 0) {
        return talk();
    }
    QCoreApplication application(argc, argv);
    tst_Singleton test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_Singleton.moc"
