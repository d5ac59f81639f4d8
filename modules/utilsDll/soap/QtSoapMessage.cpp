// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/soap/QtSoapMessage.h"

#include "utilsDll/soap/QtSoapNamespaces.h"
#include "utilsDll/soap/QtSoapSimpleType.h"
#include "utilsDll/soap/SoapDocument_p.h"
#include "utilsDll/soap/SoapDom_p.h"

#include <array>
#include <cstddef>

namespace ZYX_zglv6 {

namespace {

constexpr std::array<QStringView, QtSoapMessage::Other + 1> faultCodeTexts{
    u"SOAP-ENV:VersionMismatch", u"SOAP-ENV:MustUnderstand", u"SOAP-ENV:Client", u"SOAP-ENV:Server", u"Other"};

constexpr std::array<QStringView, QtSoapMessage::Other> knownFaultCodes{u"versionmismatch", u"mustunderstand",
                                                                        u"client", u"server"};

QtSoapQName inEnvelope(const QString &name)
{
    return {name, envelopeUri()};
}

/*! The first struct of this name, added if there is none. A document may hold a text where a struct belongs. */
QtSoapStruct &structIn(QtSoapStruct &parent, const QtSoapQName &name)
{
    for (int i = 0; i < parent.count(); ++i) {
        auto *const member = dynamic_cast<QtSoapStruct *>(&parent[i]);
        if (member != nullptr && member->name() == name) {
            return *member;
        }
    }
    auto *const added = new QtSoapStruct(name);
    parent.insert(added);
    return *added;
}

bool hasTag(const QDomNode &node, QStringView tag)
{
    const QDomElement element = node.toElement();
    return !element.isNull() && withoutPrefix(element.tagName()).toUpper() == tag;
}

} // namespace

QtSoapMessage::QtSoapMessage()
    : m_envelope(inEnvelope(u"Envelope"_qs))
{
    init();
}

QtSoapMessage::QtSoapMessage(const QtSoapMessage &other)
    : m_type(other.m_type)
    , m_envelope(other.m_envelope)
    , m_method(other.m_method)
    , m_methodArguments(other.m_methodArguments)
    , m_errorString(other.m_errorString)
{
    init();
}

QtSoapMessage &QtSoapMessage::operator=(const QtSoapMessage &other) = default;
QtSoapMessage::~QtSoapMessage() = default;

void QtSoapMessage::init()
{
    QtSoapNamespaces &namespaces = QtSoapNamespaces::instance();
    namespaces.registerNamespace(u"SOAP-ENV"_qs, envelopeUri());
    namespaces.registerNamespace(u"SOAP-ENC"_qs, encodingUri());
    namespaces.registerNamespace(u"xsi"_qs, schemaInstanceUri());
    namespaces.registerNamespace(u"xsd"_qs, schemaUri());
}

void QtSoapMessage::clear()
{
    m_type = OtherType;
    m_envelope = QtSoapStruct(inEnvelope(u"Envelope"_qs)); // reading may have renamed it
    m_method = QtSoapQName();
    m_methodArguments.clear();
    m_errorString = u"Unknown error"_qs;
}

bool QtSoapMessage::setContent(const QByteArray &buffer)
{
    QDomDocument document;
    if (const auto error = readDocument(buffer, document)) {
        const QString place = u"%1 at line %2, column %3"_qs.arg(error->message, QString::number(error->line),
                                                                 QString::number(error->column));
        setReadingFault(u"XML parse error"_qs, u"ParseError"_qs, place);
        return false;
    }
    if (!isValidSoapMessage(document)) {
        return false;
    }
    const bool isRead = readEnvelope(document); // without clear(): only the envelope's members are replaced
    if (!isRead) {
        qDebug("QtSoapMessage::setContent(), parsing failed: %s", qUtf8Printable(m_envelope.errorString()));
    }
    return isRead;
}

bool QtSoapMessage::setContent(QDomDocument &document)
{
    if (!isValidSoapMessage(document)) {
        return false;
    }
    clear();
    return readEnvelope(document);
}

bool QtSoapMessage::readEnvelope(const QDomDocument &document)
{
    QDomNode node = document.firstChild();
    if (!node.isElement()) {
        node = node.nextSibling();
    }
    if (m_envelope.parse(node)) {
        return true;
    }
    m_envelope.clear(); // what was read so far must not hide the fault
    setStructureFault(m_envelope.errorString());
    return false;
}

bool QtSoapMessage::isValidSoapMessage(const QDomDocument &document)
{
    QDomNode node = document.firstChild();
    if (node.isProcessingInstruction()) {
        node = node.nextSibling();
    }
    const QDomElement envelope = node.toElement();
    if (envelope.isNull()) {
        return false; // also for a comment in front of the envelope, and without a fault
    }
    if (!hasTag(envelope, u"ENVELOPE")) {
        setStructureFault(
            u"root element \"%1\"/\"%2\" is not envelope"_qs.arg(envelope.localName(), envelope.tagName()));
        return false;
    }
    QDomNode part = envelope.firstChild();
    if (hasTag(part, u"HEADER")) {
        part = part.nextSibling();
    }
    if (!hasTag(part, u"BODY")) {
        setStructureFault(u"mandatory body element missing"_qs);
        return false;
    }
    if (envelope.namespaceURI() != envelopeUri()) {
        setStructureFault(u"Unsupported namespace for envelope element"_qs);
        return false;
    }
    return true;
}

void QtSoapMessage::setStructureFault(const QString &detail)
{
    setReadingFault(u"SOAP structure invalid"_qs, u"extra"_qs, detail);
}

void QtSoapMessage::setReadingFault(const QString &text, const QString &detailName, const QString &detail)
{
    if (!isFault() && body()[u"Fault"_qs].isValid()) {
        m_envelope.clear(); // an earlier fault, of a code that is not known, would hide this one
    }
    setFaultCode(VersionMismatch); // for every failure, whatever it is
    setFaultString(text);
    addFaultDetail(new QtSoapSimpleType(QtSoapQName(detailName), detail));
}

QString QtSoapMessage::toXmlString(int indent) const
{
    QDomDocument document = QDomImplementation().createDocument(QString(), u"placeholder"_qs, QDomDocumentType());
    document.removeChild(document.documentElement());

    const QtSoapNamespaces &namespaces = QtSoapNamespaces::instance();
    QDomElement root = m_envelope.toDomElement(document);
    document.appendChild(root);
    root.setAttribute(namespaces.prefixFor(envelopeUri()) + u":encodingStyle", encodingUri());
    root.setAttribute(u"xmlns:" + namespaces.prefixFor(schemaUri()), schemaUri());
    splitLongTexts(root);
    return document.toString(indent);
}

QString QtSoapMessage::errorString() const
{
    return m_errorString;
}

QtSoapStruct &QtSoapMessage::body() const
{
    return structIn(m_envelope, inEnvelope(u"Body"_qs));
}

QtSoapStruct &QtSoapMessage::header() const
{
    return structIn(m_envelope, inEnvelope(u"Header"_qs));
}

QtSoapStruct &QtSoapMessage::fault()
{
    if (m_type != Fault && m_type != OtherType) {
        clear();
        m_type = Fault;
    }
    return structIn(body(), inEnvelope(u"Fault"_qs));
}

void QtSoapMessage::addBodyItem(QtSoapType *item)
{
    body().insert(item);
}

void QtSoapMessage::addHeaderItem(QtSoapType *item)
{
    header().insert(item);
}

const QtSoapType &QtSoapMessage::method() const
{
    static const QtSoapType null;
    const QtSoapStruct &content = body();
    return content.count() > 0 ? content[0] : null;
}

const QtSoapType &QtSoapMessage::returnValue() const
{
    static const QtSoapType null;
    const QtSoapType &answer = method();
    const bool hasMembers = answer.isValid() && answer.type() == QtSoapType::Struct && answer.count() > 0;
    return hasMembers ? answer[0] : null;
}

void QtSoapMessage::setMethod(const QtSoapQName &name)
{
    if (m_type != MethodRequest && m_type != OtherType) {
        clear();
        m_type = MethodRequest;
    }
    body().insert(new QtSoapStruct(name));
}

void QtSoapMessage::setMethod(const QString &name, const QString &uri)
{
    setMethod(QtSoapQName(name, uri));
}

bool QtSoapMessage::insertArgument(QtSoapType *item)
{
    auto *const method = dynamic_cast<QtSoapStruct *>(&body()[0]);
    if (method != nullptr) {
        method->insert(item);
        return true;
    }
    const QtSoapQName name = item != nullptr ? item->name() : QtSoapQName();
    qWarning("Attempted to add argument (%s:%s) without first setting method", qUtf8Printable(name.uri()),
             qUtf8Printable(name.name()));
    return false;
}

void QtSoapMessage::addMethodArgument(QtSoapType *item)
{
    insertArgument(item);
}

void QtSoapMessage::addMethodArgument(const QString &name, const QString &uri, const QString &value)
{
    insertNewArgument(std::make_unique<QtSoapSimpleType>(QtSoapQName(name, uri), value));
}

void QtSoapMessage::addMethodArgument(const QString &name, const QString &uri, bool value, int)
{
    insertNewArgument(std::make_unique<QtSoapSimpleType>(QtSoapQName(name, uri), value, 0));
}

void QtSoapMessage::addMethodArgument(const QString &name, const QString &uri, int value)
{
    insertNewArgument(std::make_unique<QtSoapSimpleType>(QtSoapQName(name, uri), value));
}

void QtSoapMessage::insertNewArgument(std::unique_ptr<QtSoapType> item)
{
    if (insertArgument(item.get())) {
        static_cast<void>(item.release());
    }
}

bool QtSoapMessage::isFault() const
{
    return faultCode() != Other;
}

QtSoapMessage::FaultCode QtSoapMessage::faultCode() const
{
    const QtSoapType &code = body()[u"Fault"_qs][u"Faultcode"_qs];
    if (!code.isValid() || (code.type() != QtSoapType::String && code.type() != QtSoapType::QName)) {
        return Other;
    }
    QString text = code.value().toString();
    text = withoutPrefix(text.left(text.indexOf(u'.')).toLower()); // left(-1) is all of it
    for (std::size_t i = 0; i < knownFaultCodes.size(); ++i) {
        if (knownFaultCodes[i] == text) {
            return FaultCode(i);
        }
    }
    return Other;
}

const QtSoapType &QtSoapMessage::faultString() const
{
    return body()[inEnvelope(u"Fault"_qs)][u"Faultstring"_qs];
}

const QtSoapType &QtSoapMessage::faultDetail() const
{
    // What services send. The "Faultdetail" of addFaultDetail() has another name and is not found.
    return body()[inEnvelope(u"Fault"_qs)][u"Detail"_qs];
}

void QtSoapMessage::setFaultCode(FaultCode code)
{
    const bool isKnown = code >= VersionMismatch && code <= Other;
    const QString text = isKnown ? faultCodeTexts[std::size_t(code)].toString() : QString();
    fault().insert(new QtSoapSimpleType(QtSoapQName(u"Faultcode"_qs), text));
}

void QtSoapMessage::setFaultString(const QString &text)
{
    fault().insert(new QtSoapSimpleType(QtSoapQName(u"Faultstring"_qs), text));
}

void QtSoapMessage::addFaultDetail(QtSoapType *detail)
{
    structIn(fault(), inEnvelope(u"Faultdetail"_qs)).insert(detail);
}

} // namespace ZYX_zglv6
