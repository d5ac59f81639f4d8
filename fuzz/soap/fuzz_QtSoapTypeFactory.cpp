// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "SoapFuzzing.h"

#include "utilsDll/soap/QtSoapArray.h"
#include "utilsDll/soap/QtSoapSimpleType.h"
#include "utilsDll/soap/QtSoapStruct.h"
#include "utilsDll/soap/QtSoapTypeFactory.h"

using namespace ZYX_zglv6;
using namespace SoapFuzzing;

namespace {

/*! Structs and arrays nest; their members are values of the three classes, never null. */
void checkTree(QtSoapType &value, int depth)
{
    check(depth <= 256);
    if (auto *const members = dynamic_cast<QtSoapStruct *>(&value)) {
        for (QtSoapStructIterator member(*members); member.data() != nullptr; ++member) {
            checkTree(*member.data(), depth + 1);
        }
    } else if (auto *const items = dynamic_cast<QtSoapArray *>(&value)) {
        for (QtSoapArrayIterator item(*items); !item.atEnd(); ++item) {
            check(item.data() != nullptr);
            checkTree(*item.data(), depth + 1);
        }
    } else {
        check(dynamic_cast<QtSoapSimpleType *>(&value) != nullptr);
    }
}

void checkRegistering(const QString &name)
{
    QtSoapTypeFactory factory(QtSoapTypeFactory::instance());
    QtSoapTypeConstructor<QtSoapStruct> handler;
    const QString refusal = u"A handler for %1 is already registered."_qs.arg(name);
    check(factory.registerHandler(name, &handler) || factory.errorString() == refusal);
    check(!factory.registerHandler(name, &handler) && factory.errorString() == refusal);
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
    const std::optional<QDomDocument> document = documentOf(bytes);
    if (!document) {
        checkRegistering(QString::fromUtf8(bytes));
        return 0;
    }
    const QtSoapTypeFactory &factory = QtSoapTypeFactory::instance();
    int nodes = 0;
    for (QDomNode node = document->firstChild(); !node.isNull() && ++nodes <= 32; node = nextInDocument(node)) {
        const QtSmartPtr<QtSoapType> value = factory.soapType(node);
        check(node.isElement() || !value);
        if (value) {
            checkTree(*value, 1);
            QDomDocument written;
            check(!value->toDomElement(written).isNull());
        }
    }
    return 0;
}
