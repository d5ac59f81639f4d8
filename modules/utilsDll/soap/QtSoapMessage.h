// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"
#include "utilsDll/soap/QtSoapStruct.h"

#include <QtCore/QByteArray>
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtXml/QDomDocument>

#include <memory>

namespace ZYX_zglv6 {

/*!
    One SOAP 1.1 document: a request that is composed, or an answer or a fault that is read. What can't be read becomes
    a fault in the message itself, so isFault() is the one question to ask.

    Compose a request in this order: header items if any, setMethod(), then addMethodArgument() for each argument in the
    order the service expects. What stands in the envelope is written in the order in which it came: a header that is
    added behind the method stands behind the body.

    Copies share their values. A message belongs to one thread, with its copies; making one writes the table of
    prefixes, which has no lock.
*/
class UTILSDLL_EXPORT QtSoapMessage
{
public:
    enum FaultCode : int { VersionMismatch, MustUnderstand, Client, Server, Other };

    QtSoapMessage();
    QtSoapMessage(const QtSoapMessage &other);
    QtSoapMessage &operator=(const QtSoapMessage &other);
    ~QtSoapMessage();

    void clear();

    /*!
        Reads a document. False: it is none, or none of SOAP 1.1; the message then is a fault that says why, unless
        there is no element where the envelope belongs, as with a comment in front of it. A fault that the service sent
        is no failure.

        Documents beyond 64 MiB, a million nodes, 256 nested elements or 256 attributes in scope, and those with a
        document type declaration, which SOAP forbids, are refused like text that is not XML.
    */
    bool setContent(const QByteArray &buffer);

    /*! The same for a document that was read with namespaces; of the limits the one on nesting holds. */
    bool setContent(QDomDocument &document);

    /*! The document, without an XML declaration; \a indent as of QDomDocument::toString(). */
    QString toXmlString(int indent = 0) const;

    /*! Empty in a new message, "Unknown error" after clear(). The reason of a failed setContent() is in the fault. */
    QString errorString() const;

    // These take the item over.

    void addBodyItem(QtSoapType *item);
    void addHeaderItem(QtSoapType *item);

    /*! The method of a request, or the answer's element: the first in the body; the null value if there is none. */
    const QtSoapType &method() const;

    /*! The first member of method(); the null value if there is none. */
    const QtSoapType &returnValue() const;

    /*! Adds the method's struct to the body. Of several the first counts. */
    void setMethod(const QtSoapQName &name);
    void setMethod(const QString &name, const QString &uri);

    /*!
        Adds \a item to the method and takes it over. Unless a struct comes first in the body there is a warning, and
        the item stays the caller's.
    */
    void addMethodArgument(QtSoapType *item);
    void addMethodArgument(const QString &name, const QString &uri, const QString &value);

    /*! A boolean; the last argument only tells this function from the one of an integer. */
    void addMethodArgument(const QString &name, const QString &uri, bool value, int);
    void addMethodArgument(const QString &name, const QString &uri, int value);

    /*! True if there is a fault with one of the codes that SOAP knows, also with a more detailed one. */
    bool isFault() const;

    /*! The code up to its first "."; Other for an unknown one, and if there is no fault. */
    FaultCode faultCode() const;
    const QtSoapType &faultString() const;

    /*! What a service sent as "detail". Details of addFaultDetail() are only written into the document. */
    const QtSoapType &faultDetail() const;

    // These add to the fault; of several codes or texts the first counts.

    void setFaultCode(FaultCode code);
    void setFaultString(const QString &text);
    void addFaultDetail(QtSoapType *detail); // takes it over

protected:
    /*! Whether the outer structure is the one of an envelope. If not, the message becomes a fault, unless there is no
        element where the envelope belongs. */
    bool isValidSoapMessage(const QDomDocument &document);

    /*! Enters the namespaces of SOAP into the table of prefixes. */
    void init();

    // Made in the envelope when they are first asked for, also in a const message.

    QtSoapStruct &body() const;
    QtSoapStruct &header() const;

private:
    enum MessageType : int { Fault = 0, MethodRequest = 1, OtherType = 3 };

    QtSoapStruct &fault();
    void setStructureFault(const QString &detail);
    void setReadingFault(const QString &text, const QString &detailName, const QString &detail);
    bool insertArgument(QtSoapType *item);
    void insertNewArgument(std::unique_ptr<QtSoapType> item);
    bool readEnvelope(const QDomDocument &document);

    MessageType m_type = OtherType; // and so it stays: Fault and MethodRequest are reached only from each other
    mutable QtSoapStruct m_envelope;
    QtSoapQName m_method; // these two stay empty: method and arguments are in the body
    QtSoapStruct m_methodArguments;
    QString m_errorString;
};

} // namespace ZYX_zglv6

Q_DECLARE_METATYPE(ZYX_zglv6::QtSoapMessage)
