// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/frame/FunctionName.h"

#include <QtCore/QRandomGenerator>
#include <QtCore/QString>
#include <QtTest/QTest>

#include <map>
#include <string>

using ZYX_zglv6::FunctionNameCutter;

#define RETURN_OWN_NAME()                                                                                              \
    ZYX_DECLARE_FUNCTION_NAME(ownName);                                                                                \
    return QString::fromUtf8(ownName.data())

// The cut is the compiler's work: nothing of it is left for the running program.
static_assert(FunctionNameCutter("int main(int, char**)").name() == "main");
static_assert(FunctionNameCutter("virtual void N::{anonymous}::C<T>::f(T) const [with T = int]").name()
              == "N::`anonymous-namespace'::C::f");
static_assert(FunctionNameCutter("").name().empty());
static_assert(ZYX_zglv6::cutFunctionName<4>("int main()") == std::array<char, 5>{'m', 'a', 'i', 'n', '\0'});

QString freeFunctionName()
{
    RETURN_OWN_NAME();
}

namespace Outer::Inner {

QString nestedNamespaceName(const QString & /*text*/, int /*number*/)
{
    RETURN_OWN_NAME();
}

const std::map<int, std::string> &otherReturnTypeName(QString *result)
{
    ZYX_DECLARE_FUNCTION_NAME(ownName);
    *result = QString::fromUtf8(ownName.data());
    static const std::map<int, std::string> nothing;
    return nothing;
}

template <typename T>
QString templateName(T /*argument*/)
{
    RETURN_OWN_NAME();
}

class Base
{
public:
    virtual ~Base() = default;

    virtual QString virtualName() const
    {
        RETURN_OWN_NAME();
    }
};

class Thing final : public Base
{
public:
    explicit Thing(QString *nameOfDestructor = nullptr)
        : m_nameOfDestructor(nameOfDestructor)
    {
        ZYX_DECLARE_FUNCTION_NAME(ownName);
        nameOfConstructor = QString::fromUtf8(ownName.data());
    }

    ~Thing() override
    {
        ZYX_DECLARE_FUNCTION_NAME(ownName);
        if (m_nameOfDestructor != nullptr) {
            *m_nameOfDestructor = QString::fromUtf8(ownName.data());
        }
    }

    static QString staticName()
    {
        RETURN_OWN_NAME();
    }

    QString virtualName() const override
    {
        RETURN_OWN_NAME();
    }

    QString constName(int /*number*/) const noexcept
    {
        RETURN_OWN_NAME();
    }

    QString temporaryName() &&
    {
        RETURN_OWN_NAME();
    }

    template <typename T, int Number>
    QString templateName(const std::map<T, T> & /*argument*/)
    {
        RETURN_OWN_NAME();
    }

    QString operator()(int /*number*/) const
    {
        RETURN_OWN_NAME();
    }

    QString operator<(const Thing & /*other*/) const
    {
        RETURN_OWN_NAME();
    }

    QString operator->*(int /*number*/) const
    {
        RETURN_OWN_NAME();
    }

    QString operator[](int /*number*/) const
    {
        RETURN_OWN_NAME();
    }

    operator QString() const
    {
        RETURN_OWN_NAME();
    }

    QString nameOfConstructor;

private:
    Q_DISABLE_COPY_MOVE(Thing)

    QString *m_nameOfDestructor;
};

template <typename T, int Number>
class Box
{
public:
    Box()
    {
        ZYX_DECLARE_FUNCTION_NAME(ownName);
        nameOfConstructor = QString::fromUtf8(ownName.data());
    }

    T memberName() const
    {
        RETURN_OWN_NAME();
    }

    class Lid
    {
    public:
        QString memberName() const
        {
            RETURN_OWN_NAME();
        }
    };

    QString nameOfConstructor;
};

namespace {

QString unnamedNamespaceName()
{
    RETURN_OWN_NAME();
}

class Hidden
{
public:
    QString memberName() const
    {
        RETURN_OWN_NAME();
    }
};

QString hiddenArgumentName(const Hidden & /*hidden*/)
{
    RETURN_OWN_NAME();
}

Hidden *hiddenReturnTypeName(QString *result)
{
    ZYX_DECLARE_FUNCTION_NAME(ownName);
    *result = QString::fromUtf8(ownName.data());
    return nullptr;
}

} // namespace

QString lambdaName()
{
    return [] { RETURN_OWN_NAME(); }();
}

QString lambdaWithTypesName()
{
    return [](int (*)(int)) -> QString { RETURN_OWN_NAME(); }(nullptr);
}

QString mutableLambdaName()
{
    return [number = 0]() mutable {
        ++number;
        RETURN_OWN_NAME();
    }();
}

QString nestedLambdaName()
{
    return [](int) { return [](char) -> QString { RETURN_OWN_NAME(); }(char()); }(1);
}

QString genericLambdaName()
{
    return [](auto) { RETURN_OWN_NAME(); }(std::string());
}

template <typename T>
QString lambdaInTemplateName(T value)
{
    return [](T) { RETURN_OWN_NAME(); }(value);
}

QString localClassName()
{
    class Local
    {
    public:
        QString memberName() const
        {
            RETURN_OWN_NAME();
        }
    };
    return Local().memberName();
}

} // namespace Outer::Inner

class tst_FunctionName : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ownName_isWhatTheCompilerCallsTheFunction_data();
    void ownName_isWhatTheCompilerCallsTheFunction();
    void ownName_isZeroTerminated();

    void cut_keepsTheQualifiedName_data();
    void cut_keepsTheQualifiedName();
    void cut_ofOddText_isItsPlainPart_data();
    void cut_ofOddText_isItsPlainPart();
    void cut_ofLongName_losesItsEnd_data();
    void cut_ofLongName_losesItsEnd();
    void cut_ofDeepNesting_ends_data();
    void cut_ofDeepNesting_ends();
    void cut_ofEveryBeginningOfASpelling_staysInBounds();
    void cut_ofAnyPiecesInAnyOrder_staysInBounds();
};

namespace {

using namespace Outer::Inner;

QString cut(const QByteArray &signature)
{
    // The text ends where the heap block ends, so that a checked build sees each character read behind it.
    const std::vector<char> exact(signature.cbegin(), signature.cend());
    const FunctionNameCutter cutter(std::string_view(exact.data(), exact.size()));
    return QString::fromUtf8(cutter.name().data(), qsizetype(cutter.name().size()));
}

const std::vector<std::pair<const char *, const char *>> &spellings()
{
    static const std::vector<std::pair<const char *, const char *>> rows{
        // GCC
        {"int main(int, char**)", "main"},
        {"void ZYX_zglv6::initLogger(const QString&, ZYX_zglv6::LoggerType)", "ZYX_zglv6::initLogger"},
        {"ZYX_zglv6::CTemporarySettings::CTemporarySettings(const QDir&)",
         "ZYX_zglv6::CTemporarySettings::CTemporarySettings"},
        {"virtual ZYX_zglv6::CTemporarySettings::~CTemporarySettings()",
         "ZYX_zglv6::CTemporarySettings::~CTemporarySettings"},
        {"{anonymous}::CLoggerWrapper::CLoggerWrapper(const QString&)",
         "`anonymous-namespace'::CLoggerWrapper::CLoggerWrapper"},
        {"quint64 {anonymous}::getMainWindowHWnd()", "`anonymous-namespace'::getMainWindowHWnd"},
        {"N::{anonymous}::S* N::{anonymous}::f(N::{anonymous}::S&)", "N::`anonymous-namespace'::f"},
        {"static const std::vector<std::map<int, std::__cxx11::basic_string<char> > >& N::Q::ref()", "N::Q::ref"},
        {"N::B<T, K>::~B() [with T = std::map<int, int>; int K = 1]", "N::B::~B"},
        {"T N::B<T, K>::get(T) const [with T = N::S*; int K = 3]", "N::B::get"},
        {"static std::map<U, T> N::B<T, K>::f(std::function<void(U, T)>) [with U = int; T = N::S*; int K = 3]",
         "N::B::f"},
        {"void N::f() [with char C = '(']", "N::f"},
        {"void N::f() [with char C = '<']", "N::f"},
        {"void N::f() [with void (* F)() = N::g]", "N::f"},
        {"void N::f(T) requires  sizeof (T) > 1 [with T = int]", "N::f"},
        {"decltype(auto) N::f(T) [with T = int]", "N::f"},
        {"decltype (t.g()) N::f(T) [with T = Q; decltype (t.g()) = int]", "N::f"},
        {"decltype (t->g()) N::f(T) [with T = Q*; decltype (t->g()) = int]", "N::f"},
        {"int (& N::f())[3]", "N::f"},
        {"void (* N::f(int))(char)", "N::f"},
        {"int (* (* N::f())(int))(char)", "N::f"},
        {"void (N::{anonymous}::S::* N::f())(int) const", "N::f"},
        {"int N::operator\"\"_km(long long unsigned int)", "N::operator\"\"_km"},
        {"bool N::S::operator<(const N::S&) const", "N::S::operator<"},
        {"bool N::S::operator<<(T) [with T = int]", "N::S::operator<<"},
        {"auto N::S::operator<=>(int) const", "N::S::operator<=>"},
        {"N::S* N::S::operator->()", "N::S::operator->"},
        {"int N::S::operator->*(int)", "N::S::operator->*"},
        {"void N::S::operator,(int)", "N::S::operator,"},
        {"int N::S::operator~()", "N::S::operator~"},
        {"int N::S::operator[](int) const", "N::S::operator[]"},
        {"void N::S::operator()(int) const", "N::S::operator()"},
        {"static void* N::S::operator new(std::size_t)", "N::S::operator new"},
        {"static void* N::S::operator new [](std::size_t)", "N::S::operator new []"},
        {"static void N::S::operator delete(void*)", "N::S::operator delete"},
        {"N::S::operator bool() const", "N::S::operator bool"},
        {"N::S::operator const char*()", "N::S::operator const char*"},
        {"N::S::operator std::map<int, int>()", "N::S::operator std::map<int, int>"},
        {"N::S::operator std::function<void(int)>()", "N::S::operator std::function<void(int)>"},
        {"void N::{anonymous}::<unnamed struct>::z()", "N::`anonymous-namespace'::<unnamed>::z"},
        {"void N::(anonymous struct)::z()", "N::<unnamed>::z"},
        {"void N::(anonymous union)::z()", "N::<unnamed>::z"},
        {"N::<unnamed-type-x>::z", "N::<unnamed>::z"},
        {"auto N::f()::(lambda at a b.cpp:1:2)::operator()() const", "N::f::<lambda>"},
        {"void N::A<'>'>::g()", "N::A::g"},
        {"void N::A<'('>::g()", "N::A::g"},
        {"N::C<`anonymous-namespace'::X>::g", "N::C::g"},
        {"N::B<T, K>::operator T() [with T = int; int K = 3]", "N::B::operator T"},
        {"void N::operatorX::operators()", "N::operatorX::operators"},
        {"void N::X::my_operator()", "N::X::my_operator"},
        {"void N::X::decltyped()", "N::X::decltyped"},
        {"N::<lambda(int)>", "N::<lambda>"},
        {"main(int, char**)::<lambda()>", "main::<lambda>"},
        {"N::f()::<lambda(int (*)(int))> mutable", "N::f::<lambda>"},
        {"N::f()::<lambda(auto:11)> [with auto:11 = std::__cxx11::basic_string<char>]", "N::f::<lambda>"},
        {"N::f()::<lambda()>::<lambda(int)>", "N::f::<lambda>::<lambda>"},
        {"N::C::f() const::<lambda(int)>", "N::C::f::<lambda>"},
        {"N::f<int>(int)::<lambda(int)>", "N::f::<lambda>"},
        {"void N::f()::<lambda()>::<lambda(int)>::L::g()", "N::f::<lambda>::<lambda>::L::g"},
        {"N::f()::Local::operator()()::<lambda()>", "N::f::Local::operator()::<lambda>"},
        // Clang
        {"int main(int, char **)", "main"},
        {"quint64 (anonymous namespace)::getMainWindowHWnd()", "`anonymous-namespace'::getMainWindowHWnd"},
        {"N::(anonymous namespace)::S *N::(anonymous namespace)::f(N::(anonymous namespace)::S &)",
         "N::`anonymous-namespace'::f"},
        {"N::(anonymous namespace)::B<N::(anonymous namespace)::S *, 3>::~B() [T = N::(anonymous namespace)::S *, K = "
         "3]",
         "N::`anonymous-namespace'::B::~B"},
        {"static std::map<U, T> N::B<N::S *, 3>::f(std::function<void (U, T)>) [T = N::S *, K = 3, U = int]",
         "N::B::f"},
        {"void N::A<&N::f>::g() [V = &N::f]", "N::A::g"},
        {"<dependent type> N::f(T) [T = N::Q *]", "N::f"},
        {"auto N::f(T) -> decltype(t.g()) [T = N::Q]", "N::f"},
        {"int (&N::f())[3]", "N::f"},
        {"int (*(*N::f())(int))(char)", "N::f"},
        {"void (S::*N::f())(int) const", "N::f"},
        {"void (N::(anonymous namespace)::S::*N::f())(int) const", "N::f"},
        {"static void *N::S::operator new[](std::size_t)", "N::S::operator new[]"},
        {"const char *N::S::operator const char *()", "N::S::operator const char *"},
        {"std::map<int, int> N::S::operator map()", "N::S::operator map"},
        {"N::(anonymous namespace)::S *N::T::operator N::(anonymous namespace)::S *()",
         "N::T::operator N::`anonymous-namespace'::S *"},
        {"auto N::(anonymous class)::operator()(int) const", "N::<lambda>"},
        {"auto N::f()::(anonymous class)::operator()(auto) const [x:auto = int]", "N::f::<lambda>"},
        {"auto N::f()::(anonymous class)::operator()()::(anonymous class)::operator()(int) const",
         "N::f::<lambda>::<lambda>"},
        {"void N::f()::(anonymous class)::operator()(int)::L::g()", "N::f::<lambda>::L::g"},
        // Visual C++
        {"main", "main"},
        {"ZYX_zglv6::CTemporarySettings::CTemporarySettings", "ZYX_zglv6::CTemporarySettings::CTemporarySettings"},
        {"ZYX_zglv6::CTemporarySettings::~CTemporarySettings", "ZYX_zglv6::CTemporarySettings::~CTemporarySettings"},
        {"`anonymous-namespace'::CLoggerWrapper::CLoggerWrapper",
         "`anonymous-namespace'::CLoggerWrapper::CLoggerWrapper"},
        {"N::`anonymous namespace'::f", "N::`anonymous-namespace'::f"},
        {"N::B<class std::map<int,int,struct std::less<int> >,3>::get", "N::B::get"},
        {"N::S::operator ()", "N::S::operator()"},
        {"N::S::operator <<", "N::S::operator <<"},
        {"N::S::operator<<", "N::S::operator<<"},
        {"N::S::operator bool", "N::S::operator bool"},
        {"N::f::<lambda_1>::operator ()", "N::f::<lambda>"},
        {"N::f::<lambda_2b1aec9e7bb18fdfc35dd1c8ba1a9ee1>::operator ()", "N::f::<lambda>"},
        {"N::f::<lambda_1>::operator ()::<lambda_2>::operator ()", "N::f::<lambda>::<lambda>"},
    };
    return rows;
}

} // namespace

void tst_FunctionName::ownName_isWhatTheCompilerCallsTheFunction_data()
{
    QTest::addColumn<QString>("ownName");
    QTest::addColumn<QString>("expected");

    QTest::newRow("free function") << freeFunctionName() << u"freeFunctionName"_qs;
    QTest::newRow("namespaces") << nestedNamespaceName({}, 0) << u"Outer::Inner::nestedNamespaceName"_qs;
    QString name;
    otherReturnTypeName(&name);
    QTest::newRow("return type with blanks") << name << u"Outer::Inner::otherReturnTypeName"_qs;
    QTest::newRow("function template") << templateName(1) << u"Outer::Inner::templateName"_qs;
    QTest::newRow("function template, class argument")
        << templateName(std::map<int, int>()) << u"Outer::Inner::templateName"_qs;

    Thing thing;
    const Thing &constThing = thing;
    const Base &base = thing;
    QTest::newRow("constructor") << thing.nameOfConstructor << u"Outer::Inner::Thing::Thing"_qs;
    {
        const Thing dying(&name);
    }
    QTest::newRow("destructor") << name << u"Outer::Inner::Thing::~Thing"_qs;
    QTest::newRow("static member") << Thing::staticName() << u"Outer::Inner::Thing::staticName"_qs;
    QTest::newRow("virtual member") << Base().virtualName() << u"Outer::Inner::Base::virtualName"_qs;
    QTest::newRow("overridden member") << base.virtualName() << u"Outer::Inner::Thing::virtualName"_qs;
    QTest::newRow("const member") << constThing.constName(1) << u"Outer::Inner::Thing::constName"_qs;
    QTest::newRow("member of temporaries") << Thing().temporaryName() << u"Outer::Inner::Thing::temporaryName"_qs;
    QTest::newRow("member template") << thing.templateName<int, 3>({}) << u"Outer::Inner::Thing::templateName"_qs;

    QTest::newRow("call operator") << constThing(1) << u"Outer::Inner::Thing::operator()"_qs;
    QTest::newRow("less operator") << (constThing < thing) << u"Outer::Inner::Thing::operator<"_qs;
    QTest::newRow("pointer operator") << (constThing->*1) << u"Outer::Inner::Thing::operator->*"_qs;
    QTest::newRow("index operator") << constThing[1] << u"Outer::Inner::Thing::operator[]"_qs;
    QTest::newRow("conversion operator") << QString(constThing) << u"Outer::Inner::Thing::operator QString"_qs;

    const Box<QString, 7> box;
    QTest::newRow("constructor of a class template") << box.nameOfConstructor << u"Outer::Inner::Box::Box"_qs;
    QTest::newRow("member of a class template") << box.memberName() << u"Outer::Inner::Box::memberName"_qs;
    QTest::newRow("class in a class template")
        << Box<std::map<int, int>, 1>::Lid().memberName() << u"Outer::Inner::Box::Lid::memberName"_qs;

    QTest::newRow("unnamed namespace") << unnamedNamespaceName()
                                       << u"Outer::Inner::`anonymous-namespace'::unnamedNamespaceName"_qs;
    QTest::newRow("class in the unnamed namespace")
        << Hidden().memberName() << u"Outer::Inner::`anonymous-namespace'::Hidden::memberName"_qs;
    QTest::newRow("argument from the unnamed namespace")
        << hiddenArgumentName({}) << u"Outer::Inner::`anonymous-namespace'::hiddenArgumentName"_qs;
    hiddenReturnTypeName(&name);
    QTest::newRow("return type from the unnamed namespace")
        << name << u"Outer::Inner::`anonymous-namespace'::hiddenReturnTypeName"_qs;

    QTest::newRow("lambda") << lambdaName() << u"Outer::Inner::lambdaName::<lambda>"_qs;
    QTest::newRow("lambda with types") << lambdaWithTypesName() << u"Outer::Inner::lambdaWithTypesName::<lambda>"_qs;
    QTest::newRow("mutable lambda") << mutableLambdaName() << u"Outer::Inner::mutableLambdaName::<lambda>"_qs;
    QTest::newRow("nested lambda") << nestedLambdaName() << u"Outer::Inner::nestedLambdaName::<lambda>::<lambda>"_qs;
    QTest::newRow("generic lambda") << genericLambdaName() << u"Outer::Inner::genericLambdaName::<lambda>"_qs;
    QTest::newRow("lambda in a template")
        << lambdaInTemplateName(1) << u"Outer::Inner::lambdaInTemplateName::<lambda>"_qs;
    QTest::newRow("local class") << localClassName() << u"Outer::Inner::localClassName::Local::memberName"_qs;
}

void tst_FunctionName::ownName_isWhatTheCompilerCallsTheFunction()
{
    QFETCH(const QString, ownName);
    QTEST(ownName, "expected");
}

void tst_FunctionName::ownName_isZeroTerminated()
{
    ZYX_DECLARE_FUNCTION_NAME(ownName);
    static_assert(ownName.back() == '\0');
    static_assert(std::string_view(ownName.data()).size() + 1 == ownName.size());
    QCOMPARE(QString::fromUtf8(ownName.data()), u"tst_FunctionName::ownName_isZeroTerminated"_qs);
}

void tst_FunctionName::cut_keepsTheQualifiedName_data()
{
    QTest::addColumn<QByteArray>("signature");
    QTest::addColumn<QString>("expected");

    for (const auto &[signature, expected] : spellings()) {
        QTest::newRow(signature) << QByteArray(signature) << QString::fromUtf8(expected);
    }
}

void tst_FunctionName::cut_keepsTheQualifiedName()
{
    QFETCH(const QByteArray, signature);
    QTEST(cut(signature), "expected");
}

void tst_FunctionName::cut_ofOddText_isItsPlainPart_data()
{
    QTest::addColumn<QByteArray>("signature");
    QTest::addColumn<QString>("expected");

    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("blank") << QByteArray(" ") << QString();
    QTest::newRow("blank at the end") << QByteArray("int ") << QString();
    QTest::newRow("open parenthesis") << QByteArray("(") << QString();
    QTest::newRow("closing parenthesis") << QByteArray(")") << QString();
    QTest::newRow("open angle") << QByteArray("<") << QString();
    QTest::newRow("crossed brackets") << QByteArray("<(>)") << QString();
    QTest::newRow("parameters without end") << QByteArray("void f(int") << u"f"_qs;
    QTest::newRow("template without end") << QByteArray("void C<int") << u"C"_qs;
    QTest::newRow("more closed than open") << QByteArray("void f())))") << u"f"_qs;
    QTest::newRow("colons") << QByteArray("::") << u"::"_qs;
    QTest::newRow("quote of no namespace") << QByteArray("`f'") << u"`f'"_qs;
    QTest::newRow("bare operator") << QByteArray("operator") << u"operator"_qs;
    QTest::newRow("operator and a blank") << QByteArray("operator ") << u"operator "_qs;
    QTest::newRow("operator and half a call") << QByteArray("C::operator(") << u"C::operator"_qs;
    QTest::newRow("lambda without end") << QByteArray("f()::<lambda(int") << u"f::<lambda>"_qs;
    QTest::newRow("bare class of a lambda") << QByteArray("(anonymous class)") << u"<lambda>"_qs;
    QTest::newRow("bare decltype") << QByteArray("decltype") << QString();
    QTest::newRow("decltype and a blank") << QByteArray("decltype ") << QString();
    QTest::newRow("decltype without end") << QByteArray("decltype(a") << QString();
    QTest::newRow("other than ASCII") << QByteArray("void \xc3\xa4::\xe2\x82\xac()") << u"\u00e4::\u20ac"_qs;
}

void tst_FunctionName::cut_ofOddText_isItsPlainPart()
{
    QFETCH(const QByteArray, signature);
    QTEST(cut(signature), "expected");
}

void tst_FunctionName::cut_ofLongName_losesItsEnd_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("kept");

    QTest::newRow("one less than fits") << 511 << 511;
    QTest::newRow("just fits") << 512 << 512;
    QTest::newRow("one more than fits") << 513 << 512;
    QTest::newRow("far more than fits") << 1'000'000 << 512;
}

void tst_FunctionName::cut_ofLongName_losesItsEnd()
{
    QFETCH(const int, length);
    QFETCH(const int, kept);

    QCOMPARE(cut("void " + QByteArray(length, 'n') + "(int)"), QString(kept, u'n'));
    // A long return type takes nothing from the name.
    QCOMPARE(cut(QByteArray(length, 'r') + " f(int)"), u"f"_qs);
}

void tst_FunctionName::cut_ofDeepNesting_ends_data()
{
    QTest::addColumn<QByteArray>("piece");

    for (const char *piece : {"(",
                              ")",
                              "<",
                              ">",
                              "[",
                              "{",
                              "(<",
                              "f(",
                              "f<",
                              "f()::",
                              "operator",
                              "operator(",
                              "<lambda",
                              "<lambda()>",
                              "(anonymous class)",
                              "{anonymous}::",
                              "*",
                              "&",
                              " ",
                              "decltype("}) {
        QTest::newRow(piece) << QByteArray(piece);
    }
}

void tst_FunctionName::cut_ofDeepNesting_ends()
{
    QFETCH(const QByteArray, piece);
    QVERIFY(cut(piece.repeated(50'000)).toUtf8().size() <= 512);
}

void tst_FunctionName::cut_ofEveryBeginningOfASpelling_staysInBounds()
{
    for (const auto &row : spellings()) {
        const QByteArray signature(row.first);
        for (qsizetype length = 0; length < signature.size(); ++length) {
            const QString name = cut(signature.first(length));
            QVERIFY2(name.size() <= length + qsizetype(std::string_view("`anonymous-namespace'").size()),
                     signature.first(length).constData());
        }
    }
}

void tst_FunctionName::cut_ofAnyPiecesInAnyOrder_staysInBounds()
{
    const QByteArrayList pieces{"operator",
                                "decltype",
                                "<lambda",
                                "(anonymous class)",
                                "(anonymous namespace)",
                                "{anonymous}",
                                "`anonymous-namespace'",
                                "::",
                                "(",
                                ")",
                                "<",
                                ">",
                                "[",
                                "]",
                                "{",
                                "}",
                                " ",
                                "*",
                                "&",
                                "const",
                                "noexcept",
                                "mutable",
                                "f",
                                "C",
                                "_",
                                "()",
                                " ()",
                                "->",
                                "\x80"};
    QRandomGenerator random(1); // the same texts in each run
    for (int round = 0; round < 20'000; ++round) {
        QByteArray signature;
        for (quint32 count = random.bounded(12U); count > 0; --count) {
            signature += pieces.at(random.bounded(pieces.size()));
        }
        QVERIFY2(cut(signature).size() <= 512, signature.constData());
    }
}

QTEST_APPLESS_MAIN(tst_FunctionName)

#include "tst_FunctionName.moc"
