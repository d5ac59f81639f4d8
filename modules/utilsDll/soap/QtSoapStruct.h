// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/soap/QtSoapType.h"

#include <QtCore/QList>

namespace ZYX_zglv6 {

/*!
    An ordered list of named members. A copy shares the members: it may get others, but a change of a member that both
    have is seen in both.
*/
class UTILSDLL_EXPORT QtSoapStruct : public QtSoapType
{
public:
    QtSoapStruct();
    explicit QtSoapStruct(const QtSoapQName &name);
    QtSoapStruct(const QtSoapStruct &other);
    QtSoapStruct &operator=(const QtSoapStruct &other);
    ~QtSoapStruct() override;

    /*!
        Appends \a item, which must not be owned yet, and takes it over. Several members may have one name. A null item
        ends the written members.
    */
    void insert(QtSoapType *item);

    /*!
        The first member with this name, compared as stored name == \a key: case is ignored, and a key without a URI
        finds any. The null value if there is none.
    */
    QtSoapType &at(const QtSoapQName &key);
    const QtSoapType &at(const QtSoapQName &key) const;

    /*! Drops the members; name and type stay. */
    void clear() override;

    /*! Reads a member from each child element. False: no element, or errorString() says which child can't be read. */
    bool parse(QDomNode node) override;
    bool isValid() const override;
    qint64 count() const override;

    const QtSoapType &operator[](const QString &name) const override;
    const QtSoapType &operator[](const QtSoapQName &name) const override;
    const QtSoapType &operator[](int index) const override; // in order of insertion
    QtSoapType &operator[](const QString &name) override;
    QtSoapType &operator[](const QtSoapQName &name) override;
    QtSoapType &operator[](int index) override;

    QDomElement toDomElement(QDomDocument document) const override;

private:
    friend class QtSoapStructIterator;

    QtSoapType *find(const QtSoapQName &key) const;
    QtSoapType *member(int index) const;
    bool readMember(const QDomNode &node, int index, const QString &tagName);

    QList<QtSmartPtr<QtSoapType>> m_members;
};

/*!
    Goes through the members of a struct in their order. Inserting, clearing, assigning and parsing invalidate it, and
    so does another iterator while a copy shares the members. The struct must outlive it.
*/
class UTILSDLL_EXPORT QtSoapStructIterator
{
public:
    explicit QtSoapStructIterator(QtSoapStruct &soapStruct);

    /*! Name of the current member; empty at the end. */
    QtSoapQName key() const;

    /*! The current member, which the struct goes on to own; null at the end. */
    QtSoapType *data();
    const QtSoapType *current() const;

    /*! Goes on to the next member; stays at the end. */
    QtSoapStructIterator &operator++();

    /*! Compare the position alone. */
    bool operator==(const QtSoapStructIterator &other) const;
    bool operator!=(const QtSoapStructIterator &other) const;

private:
    QList<QtSmartPtr<QtSoapType>>::Iterator m_current;
    QList<QtSmartPtr<QtSoapType>>::Iterator m_end;
};

} // namespace ZYX_zglv6
