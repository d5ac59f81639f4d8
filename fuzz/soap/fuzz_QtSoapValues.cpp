// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "SoapFuzzing.h"

#include "utilsDll/soap/QtSoapArray.h"
#include "utilsDll/soap/QtSoapSimpleType.h"
#include "utilsDll/soap/QtSoapStruct.h"

#include <array>
#include <memory>
#include <type_traits>

using namespace ZYX_zglv6;
using namespace SoapFuzzing;

namespace {

void checkLookUps(const QtSoapType &value)
{
    static_cast<void>(value.toString() + value.typeName() + value.errorString() + value.name().uri());
    check(value.isValid());
    check(!value[-1].isValid() || dynamic_cast<const QtSoapArray *>(&value) != nullptr);
    check(!value[u"no such name"_qs].isValid());
    static_cast<void>(value.toInt() + int(value.toBool()));
}

void walk(QtSoapStruct &value)
{
    qint64 count = 0;
    for (QtSoapStructIterator member(value); member.current() != nullptr; ++member) {
        check(value.at(member.key()).isValid());
        checkLookUps(*member.current());
        ++count;
    }
    check(count == value.count());
}

void walk(QtSoapArray &value)
{
    qint64 count = 0;
    for (QtSoapArrayIterator item(value); !item.atEnd(); ++item) {
        int first = 0;
        int second = 0;
        int third = 0;
        int fourth = 0;
        int fifth = 0;
        item.pos(&first, &second, &third, &fourth, &fifth);
        check(&value.at(item.pos()) == item.data());
        checkLookUps(*item.current());
        ++count;
    }
    check(count == value.count());
}

template <typename T>
void checkReading(const QDomElement &element)
{
    T value;
    const bool isRead = value.parse(element);
    if constexpr (!std::is_same_v<T, QtSoapSimpleType>) {
        walk(value);
    }
    QDomDocument document;
    check(isRead == !value.name().name().isEmpty());
    if (isRead) {
        check(!value.toDomElement(document).isNull());
        value.clear();
        check(value.count() == 0);
    }
}

/*! Each byte is an extent or a coordinate, from -1 on. */
void checkArray(const QByteArray &bytes)
{
    const auto number = [&bytes](qsizetype at) { return at < bytes.size() ? int(bytes[at]) : -1; };
    QtSoapArray array(QtSoapQName(u"a"_qs), QtSoapType::Other, number(0), number(1), number(2), number(3), number(4));
    for (qsizetype at = 5; at < bytes.size(); at += 5) {
        auto item = std::make_unique<QtSoapSimpleType>(QtSoapQName(u"b"_qs), int(at));
        const qint64 countBefore = array.count();
        const std::array<int, 5> p{number(at), number(at + 1), number(at + 2), number(at + 3), number(at + 4)};
        switch (at % 6) {
        case 0:
            array.append(item.get());
            break;
        case 1:
            array.insert(p[0], item.get());
            break;
        case 2:
            array.insert(p[0], p[1], item.get());
            break;
        case 3:
            array.insert(p[0], p[1], p[2], item.get());
            break;
        case 4:
            array.insert(p[0], p[1], p[2], p[3], item.get());
            break;
        default:
            array.insert(p[0], p[1], p[2], p[3], p[4], item.get());
        }
        bool isTaken = array.count() > countBefore;
        for (QtSoapArrayIterator each(array); !isTaken && !each.atEnd(); ++each) {
            isTaken = each.current() == item.get(); // in place of another one
        }
        if (isTaken) {
            static_cast<void>(item.release()); // NOLINT(bugprone-unused-return-value): the array's now
        }
    }
    walk(array);
    QDomDocument document;
    check(array.toDomElement(document).childNodes().count() == array.count());
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int * /*argumentCount*/, char *** /*arguments*/)
{
    initialise();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = bytesOf(data, size);
    if (!bytes.startsWith('<')) {
        checkArray(bytes);
        return 0;
    }
    if (const std::optional<QDomDocument> document = documentOf(bytes)) {
        const QDomElement element = document->documentElement();
        checkReading<QtSoapStruct>(element);
        checkReading<QtSoapArray>(element);
        checkReading<QtSoapSimpleType>(element);
    }
    return 0;
}
