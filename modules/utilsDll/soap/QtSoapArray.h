// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/soap/QtSoapType.h"

#include <QtCore/QHash>

#include <array>
#include <initializer_list>

namespace ZYX_zglv6 {

/*!
    An array of one to five dimensions. Items are kept by their flat position in a hash, so they are visited and written
    in no particular order; each is written with its position.

    A copy shares the items, but has no array type until an item is inserted: one that is to be written must be given
    its items anew.
*/
class UTILSDLL_EXPORT QtSoapArray : public QtSoapType
{
public:
    /*! One dimension of any length, for items of one type that the first insert() settles. */
    QtSoapArray();

    /*!
        An array of \a itemType; Other lets the first insert() decide. The last extent that is not -1 sets the number of
        dimensions, which is one at least.
    */
    explicit QtSoapArray(const QtSoapQName &name, Type itemType = Other, int size0 = -1, int size1 = -1, int size2 = -1,
                         int size3 = -1, int size4 = -1);
    QtSoapArray(const QtSoapArray &other);

    /*! Takes over all but the array type. */
    QtSoapArray &operator=(const QtSoapArray &other);
    ~QtSoapArray() override;

    // These take the item over, in place of what stood there; it must not be owned yet. What does not fit is reported
    // by a warning, and the item stays the caller's.

    /*!
        Puts \a item, whatever its type, behind the last position that insert() or append() used. What parse() read does
        not count, and neither does the first insert() after clear(). For one dimension.
    */
    void append(QtSoapType *item);

    /*! Puts \a item at a flat position, if it is of the array's type. */
    void insert(int position, QtSoapType *item);

    /*! As many coordinates as dimensions. Two and three are checked against the extents, four and five are not. */
    void insert(int position0, int position1, QtSoapType *item);
    void insert(int position0, int position1, int position2, QtSoapType *item);
    void insert(int position0, int position1, int position2, int position3, QtSoapType *item);
    void insert(int position0, int position1, int position2, int position3, int position4, QtSoapType *item);

    // An item by its flat position or its coordinates, without a check of their range; or the null value.

    QtSoapType &at(int position);
    QtSoapType &at(int position0, int position1);
    QtSoapType &at(int position0, int position1, int position2);
    QtSoapType &at(int position0, int position1, int position2, int position3);
    QtSoapType &at(int position0, int position1, int position2, int position3, int position4);
    const QtSoapType &at(int position) const;
    const QtSoapType &at(int position0, int position1) const;
    const QtSoapType &at(int position0, int position1, int position2) const;
    const QtSoapType &at(int position0, int position1, int position2, int position3) const;
    const QtSoapType &at(int position0, int position1, int position2, int position3, int position4) const;

    /*! Drops items, array type and extents. There are no dimensions until an item is inserted at a flat position. */
    void clear() override;

    /*!
        Reads an item from each child element, under the number in its attribute "position" or else the next one.
        Dimensions, extents and array type stay as they were. False: no element, of another type, or a child that
        can't be read; errorString() does not say why.
    */
    bool parse(QDomNode node) override;
    bool isValid() const override;
    qint64 count() const override;

    /*! Items have no names: the look-ups by name give the null value. */
    using QtSoapType::operator[];
    const QtSoapType &operator[](int position) const override;
    QtSoapType &operator[](int position) override;

    QDomElement toDomElement(QDomDocument document) const override;

protected:
    /*! The extents, such as "[2,3]". */
    QString arraySizeString() const;

    /*! Name of the items' type, with the extents if they are arrays themselves. */
    QString arrayTypeString() const;

private:
    friend class QtSoapArrayIterator;

    static constexpr int maximumOrder = 5;
    using Coordinates = std::array<int, maximumOrder>;

    bool hasDimensions(std::initializer_list<int> position) const;
    bool isInRange(std::initializer_list<int> position) const;
    int flatPosition(std::initializer_list<int> position) const;
    Coordinates coordinates(int position) const;
    QtSoapType *find(int position) const;
    void store(int position, QtSoapType *item);
    QDomElement itemElement(int position, const QtSoapType &item, QDomDocument &document) const;

    QHash<int, QtSmartPtr<QtSoapType>> m_items;
    int m_lastIndex = 0;
    Type m_arrayType = Other;
    int m_order = 1;
    std::array<int, maximumOrder> m_sizes{};
};

/*!
    Goes through the items of an array in no particular order. Inserting, clearing, assigning and parsing invalidate
    it, and so does another iterator while a copy shares the items. The array must outlive it.
*/
class UTILSDLL_EXPORT QtSoapArrayIterator
{
public:
    explicit QtSoapArrayIterator(QtSoapArray &array);
    QtSoapArrayIterator(const QtSoapArrayIterator &other);
    QtSoapArrayIterator &operator=(const QtSoapArrayIterator &other);

    bool atEnd() const;

    /*! Flat position of the current item. Must not be called at the end. */
    int pos() const;

    /*!
        Coordinates of the current item, as many as the array has dimensions; the others are left alone, and any may be
        null. Must not be called at the end.
    */
    void pos(int *position0, int *position1 = nullptr, int *position2 = nullptr, int *position3 = nullptr,
             int *position4 = nullptr) const;

    /*! The current item, which the array goes on to own; null at the end. */
    QtSoapType *data();
    const QtSoapType *current() const;

    /*! Goes on to the next item; stays at the end. */
    QtSoapArrayIterator &operator++();

    bool operator==(const QtSoapArrayIterator &other) const;
    bool operator!=(const QtSoapArrayIterator &other) const;

private:
    QHash<int, QtSmartPtr<QtSoapType>>::Iterator m_current;
    QtSoapArray *m_array;
};

} // namespace ZYX_zglv6
