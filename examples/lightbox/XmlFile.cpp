// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "XmlFile.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QStringDecoder>
#include <QtCore/QXmlStreamReader>

namespace {

void readRoot(QXmlStreamReader &xml, QLatin1StringView root, const std::function<void(QXmlStreamReader &)> &readChild)
{
    if (!xml.readNextStartElement()) {
        return; // the reader knows why
    }
    if (xml.name() != root) {
        xml.raiseError(QCoreApplication::translate("CXmlFile", "“%1” stands where “%2” is expected")
                           .arg(xml.name(), QString(root)));
        return;
    }
    while (xml.readNextStartElement()) {
        readChild(xml);
    }
    while (!xml.atEnd()) {
        xml.readNext(); // nothing but comments may follow
    }
}

} // namespace

QString readXmlFile(const QString &path, QLatin1StringView root,
                    const std::function<void(QXmlStreamReader &)> &readChild)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return QCoreApplication::translate("CXmlFile", "%1 can't be read: %2").arg(path, file.errorString());
    }
    QXmlStreamReader xml(&file);
    readRoot(xml, root, readChild);
    if (!xml.hasError()) {
        return {};
    }
    return QCoreApplication::translate("CXmlFile", "%1, line %2: %3")
        .arg(QFileInfo(path).fileName(), QString::number(xml.lineNumber()), xml.errorString());
}

QString requiredAttribute(QXmlStreamReader &xml, QLatin1StringView name)
{
    QString value = xml.attributes().value(name).toString();
    if (value.isEmpty()) {
        xml.raiseError(QCoreApplication::translate("CXmlFile", "“%1” has no “%2”").arg(xml.name(), QString(name)));
    }
    return value;
}

LanguageTexts namesOf(const QXmlStreamReader &xml)
{
    LanguageTexts names;
    for (const QXmlStreamAttribute &attribute : xml.attributes()) {
        addText(names, attribute.name(), QLatin1StringView("name"), attribute.value().toString());
    }
    return names;
}

QString readBase64Text(QXmlStreamReader &xml)
{
    const QString name = xml.name().toString();
    const QByteArray text = xml.readElementText().trimmed().toUtf8();
    const auto bytes = QByteArray::fromBase64Encoding(text, QByteArray::AbortOnBase64DecodingErrors);
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString decoded = decoder(bytes.decoded);
    const bool isWhole = bytes && text.size() % 4 == 0; // the decoder takes also what is cut short
    if (!xml.hasError() && (!isWhole || decoder.hasError())) {
        xml.raiseError(QCoreApplication::translate("CXmlFile", "“%1” is not Base64 of a text").arg(name));
    }
    return decoded;
}
