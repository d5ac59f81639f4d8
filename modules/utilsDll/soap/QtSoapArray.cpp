// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/soap/QtSoapArray.h"

#include "utilsDll/soap/QtSoapTypeFactory.h"
#include "utilsDll/soap/SoapDom_p.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

#include <algorithm>

namespace ZYX_zglv6 {

namespace {

/*! The sum or product of positions wraps around: no position is refused, and none is undefined. */
int wrapped(quint32 value)
{
    return int(value);
}

int following(int position)
{
    return wrapped(quint32(position) + 1);
}

int orderOf(const std::array<int, 5> &sizes)
{
    const auto last = std::find_if(sizes.rbegin(), sizes.rend(), [](int size) { return size != -1; });
    return std::max(1, int(sizes.rend() - last));
}

QString joined(const QList<int> &numbers)
{
    QStringList texts;
    for (const int number : numbers) {
        texts.append(QString::number(number));
    }
    return texts.join(u',');
}

/*! "(1, 2)" */
QString positionText(std::initializer_list<int> position)
{
    return u'(' + joined(position).replace(u","_qs, u", "_qs) + u')';
}

bool isGiven(const QtSoapType *item)
{
    if (item == nullptr) {
        qWarning("Attempted to insert a null item in QtSoapArray.");
    }
    return item != nullptr;
}

} // namespace

QtSoapArray::QtSoapArray()
{
    m_type = Array;
}

QtSoapArray::QtSoapArray(const QtSoapQName &name, Type itemType, int size0, int size1, int size2, int size3, int size4)
    : QtSoapType(name, Array)
    , m_arrayType(itemType)
    , m_sizes{size0, size1, size2, size3, size4}
{
    m_order = orderOf(m_sizes);
}

QtSoapArray::QtSoapArray(const QtSoapArray &other)
    : QtSoapType(other)
{
    *this = other;
}

QtSoapArray &QtSoapArray::operator=(const QtSoapArray &other)
{
    QtSoapType::operator=(other);
    m_lastIndex = other.m_lastIndex;
    m_order = other.m_order; // and not the array type: the target keeps to its own
    m_sizes = other.m_sizes;
    m_items = other.m_items; // last: the other one may be an item of this one
    return *this;
}

QtSoapArray::~QtSoapArray() = default;

void QtSoapArray::store(int position, QtSoapType *item)
{
    m_items.insert(position, QtSmartPtr<QtSoapType>(item));
}

void QtSoapArray::append(QtSoapType *item)
{
    if (!hasDimensions({m_lastIndex}) || !isGiven(item)) {
        return;
    }
    if (!m_items.isEmpty()) {
        m_lastIndex = following(m_lastIndex);
        store(m_lastIndex, item);
    } else {
        store(0, item);
    }
}

void QtSoapArray::insert(int position, QtSoapType *item)
{
    if (!isGiven(item)) {
        return;
    }
    if (m_arrayType == Other) {
        m_arrayType = item->type();
    }
    if (item->type() != m_arrayType) {
        qWarning(R"(Attempted to insert item of type "%s" in QtSoapArray of type "%s".)",
                 qUtf8Printable(item->typeName()), qUtf8Printable(typeToName(m_arrayType)));
        return;
    }
    if (m_order == -1) {
        m_order = 1;
    } else if (m_order == 1 && position > m_lastIndex) {
        m_lastIndex = position;
    }
    store(position, item);
}

void QtSoapArray::insert(int position0, int position1, QtSoapType *item)
{
    if (hasDimensions({position0, position1}) && isInRange({position0, position1})) {
        insert(flatPosition({position0, position1}), item);
    }
}

void QtSoapArray::insert(int position0, int position1, int position2, QtSoapType *item)
{
    if (hasDimensions({position0, position1, position2}) && isInRange({position0, position1, position2})) {
        insert(flatPosition({position0, position1, position2}), item);
    }
}

void QtSoapArray::insert(int position0, int position1, int position2, int position3, QtSoapType *item)
{
    // Without a check of the range, unlike two and three dimensions.
    if (hasDimensions({position0, position1, position2, position3})) {
        insert(flatPosition({position0, position1, position2, position3}), item);
    }
}

void QtSoapArray::insert(int position0, int position1, int position2, int position3, int position4, QtSoapType *item)
{
    if (hasDimensions({position0, position1, position2, position3, position4})) {
        insert(flatPosition({position0, position1, position2, position3, position4}), item);
    }
}

bool QtSoapArray::hasDimensions(std::initializer_list<int> position) const
{
    const bool fits = m_order == int(position.size());
    if (!fits) {
        qWarning("Attempted to insert item at position %s in %i-dimensional QtSoapArray.",
                 qUtf8Printable(positionText(position)), m_order);
    }
    return fits;
}

bool QtSoapArray::isInRange(std::initializer_list<int> position) const
{
    const bool fits = std::equal(position.begin(), position.end(), m_sizes.begin(),
                                 [](int coordinate, int size) { return coordinate >= 0 && coordinate < size; });
    if (!fits) {
        QStringList ranges;
        for (std::size_t i = 0; i < position.size(); ++i) {
            ranges.append(u"0.."_qs + QString::number(wrapped(quint32(m_sizes[i]) - 1)));
        }
        qWarning("Attempted to insert item at position %s when range of QtSoapArray is (%s)",
                 qUtf8Printable(positionText(position)), qUtf8Printable(ranges.join(u", "_qs)));
    }
    return fits;
}

int QtSoapArray::flatPosition(std::initializer_list<int> position) const
{
    quint32 flat = 0;
    auto size = m_sizes.begin();
    for (const int coordinate : position) {
        flat = flat * quint32(*size++) + quint32(coordinate); // the first extent meets a zero and plays no part
    }
    return wrapped(flat);
}

QtSoapArray::Coordinates QtSoapArray::coordinates(int position) const
{
    // How many flat positions one step of each coordinate takes. The fourth of five dimensions steps by its own extent:
    // hosts rely on these positions. It undoes flatPosition() only if the last two extents are equal.
    std::array<qint64, maximumOrder> steps{1, 1, 1, 1, 1};
    quint32 step = 1;
    for (int i = m_order - 2; i >= 0; --i) {
        step *= quint32(m_sizes[std::size_t(i) + 1]);
        steps[std::size_t(i)] = wrapped(step);
    }
    if (m_order == maximumOrder) {
        steps[3] = m_sizes[3];
    }
    Coordinates result{};
    qint64 rest = position;
    for (std::size_t i = 0; i < std::size_t(std::max(m_order, 0)); ++i) {
        const qint64 divisor = steps[i] != 0 ? steps[i] : 1; // an extent of 0 is the caller's mistake, and no crash
        result[i] = int(rest / divisor);
        rest = (i + 1 < std::size_t(m_order)) ? rest % divisor : 0;
    }
    return result;
}

QtSoapType *QtSoapArray::find(int position) const
{
    const auto found = m_items.constFind(position);
    return found == m_items.cend() ? nullptr : found->get();
}

QtSoapType &QtSoapArray::at(int position)
{
    static QtSoapType null;
    QtSoapType *const found = find(position);
    return found != nullptr ? *found : null;
}

QtSoapType &QtSoapArray::at(int position0, int position1)
{
    return at(flatPosition({position0, position1}));
}

QtSoapType &QtSoapArray::at(int position0, int position1, int position2)
{
    return at(flatPosition({position0, position1, position2}));
}

QtSoapType &QtSoapArray::at(int position0, int position1, int position2, int position3)
{
    return at(flatPosition({position0, position1, position2, position3}));
}

QtSoapType &QtSoapArray::at(int position0, int position1, int position2, int position3, int position4)
{
    return at(flatPosition({position0, position1, position2, position3, position4}));
}

const QtSoapType &QtSoapArray::at(int position) const
{
    static const QtSoapType null;
    const QtSoapType *const found = find(position);
    return found != nullptr ? *found : null;
}

const QtSoapType &QtSoapArray::at(int position0, int position1) const
{
    return at(flatPosition({position0, position1}));
}

const QtSoapType &QtSoapArray::at(int position0, int position1, int position2) const
{
    return at(flatPosition({position0, position1, position2}));
}

const QtSoapType &QtSoapArray::at(int position0, int position1, int position2, int position3) const
{
    return at(flatPosition({position0, position1, position2, position3}));
}

const QtSoapType &QtSoapArray::at(int position0, int position1, int position2, int position3, int position4) const
{
    return at(flatPosition({position0, position1, position2, position3, position4}));
}

void QtSoapArray::clear()
{
    m_items.clear();
    m_arrayType = Other;
    m_lastIndex = 0;
    m_sizes.fill(0);
    m_order = -1;
}

bool QtSoapArray::parse(QDomNode node)
{
    const QDomElement element = node.toElement();
    if (element.isNull()) {
        return false;
    }
    const QDomAttr typeAttribute = plainAttribute(element, u"type"_qs);
    if (!typeAttribute.isNull() && withoutPrefix(typeAttribute.value()).toLower() != u"array") {
        return false;
    }
    m_items.clear();
    int position = 0;
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isComment()) {
            continue;
        }
        const QtSmartPtr<QtSoapType> item = QtSoapTypeFactory::instance().soapType(child);
        if (!item) {
            return false;
        }
        const QDomAttr positionAttribute = plainAttribute(child.toElement(), u"position"_qs);
        if (!positionAttribute.isNull()) {
            position = positionAttribute.value().toInt(); // "[3]" is no number and counts as 0
        }
        m_items.insert(position, item); // not by insert(): what is read does not change the array's shape
        position = following(position);
    }
    setName(qualifiedName(element));
    return true;
}

bool QtSoapArray::isValid() const
{
    return true;
}

qint64 QtSoapArray::count() const
{
    return m_items.size();
}

const QtSoapType &QtSoapArray::operator[](int position) const
{
    return at(position);
}

QtSoapType &QtSoapArray::operator[](int position)
{
    return at(position);
}

QDomElement QtSoapArray::toDomElement(QDomDocument document) const
{
    QDomElement element = createElement(document, name());
    setAttribute(element, schemaInstanceUri(), u"type"_qs, u"xsd:Array"_qs);
    setAttribute(element, encodingUri(), u"arrayType"_qs, u"xsd:" + arrayTypeString());
    for (auto item = m_items.cbegin(); item != m_items.cend(); ++item) {
        element.appendChild(itemElement(item.key(), **item, document));
    }
    return element;
}

QDomElement QtSoapArray::itemElement(int position, const QtSoapType &item, QDomDocument &document) const
{
    const Coordinates all = coordinates(position);
    const QList<int> used(all.begin(), all.begin() + std::max(m_order, 0));
    QDomElement element = item.toDomElement(document);
    element.setTagName(u"item"_qs);
    setAttribute(element, envelopeUri(), u"position"_qs, u'[' + joined(used) + u']');
    return element;
}

QString QtSoapArray::arraySizeString() const
{
    if (m_sizes.front() == -1) {
        return u"[]"_qs;
    }
    return u'[' + joined(QList<int>(m_sizes.begin(), m_sizes.begin() + std::max(m_order, 1))) + u']';
}

QString QtSoapArray::arrayTypeString() const
{
    if (m_arrayType != Array) {
        return typeToName(m_arrayType);
    }
    if (m_items.isEmpty()) {
        return u"int"_qs;
    }
    const QtSoapType &first = **m_items.cbegin();
    // The first item stands for all, and is looked at once: no deeper than one level.
    const auto *const inner = first.type() == Array ? dynamic_cast<const QtSoapArray *>(&first) : nullptr;
    if (inner == nullptr) {
        return first.typeName() + arraySizeString();
    }
    if (inner->m_items.isEmpty()) {
        return u"int"_qs + arraySizeString();
    }
    return first.typeName() + arraySizeString() + inner->arraySizeString();
}

QtSoapArrayIterator::QtSoapArrayIterator(QtSoapArray &array)
    : m_current(array.m_items.begin())
    , m_array(&array)
{
}

QtSoapArrayIterator::QtSoapArrayIterator(const QtSoapArrayIterator &other) = default;
QtSoapArrayIterator &QtSoapArrayIterator::operator=(const QtSoapArrayIterator &other) = default;

bool QtSoapArrayIterator::atEnd() const
{
    return m_current == m_array->m_items.end();
}

int QtSoapArrayIterator::pos() const
{
    return m_current.key();
}

void QtSoapArrayIterator::pos(int *position0, int *position1, int *position2, int *position3, int *position4) const
{
    const QtSoapArray::Coordinates coordinates = m_array->coordinates(pos());
    const std::array<int *, QtSoapArray::maximumOrder> targets{position0, position1, position2, position3, position4};
    for (std::size_t i = 0; i < targets.size() && int(i) < m_array->m_order; ++i) {
        if (targets[i] != nullptr) {
            *targets[i] = coordinates[i];
        }
    }
}

QtSoapType *QtSoapArrayIterator::data()
{
    return atEnd() ? nullptr : m_current->get();
}

const QtSoapType *QtSoapArrayIterator::current() const
{
    return atEnd() ? nullptr : m_current->get();
}

QtSoapArrayIterator &QtSoapArrayIterator::operator++()
{
    if (!atEnd()) {
        ++m_current;
    }
    return *this;
}

bool QtSoapArrayIterator::operator==(const QtSoapArrayIterator &other) const
{
    return m_current == other.m_current;
}

bool QtSoapArrayIterator::operator!=(const QtSoapArrayIterator &other) const
{
    return m_current != other.m_current;
}

} // namespace ZYX_zglv6
