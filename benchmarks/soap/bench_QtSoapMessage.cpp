// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
// A request with one text of 20 MB: composed, written, and read again. Beside Qt's document alone, with the same
// elements and attributes, and beside a toolkit that generates its code. The peak of the memory is the one of a process
// that does it once and nothing else.

#include "PeakMemory.h"

#include "utilsDll/soap/QtSoapMessage.h"

#ifdef HAS_GENERATED_TEXT
#include "GeneratedText.h"
#endif

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtXml/QDomDocument>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <iterator>
#include <string>

using namespace ZYX_zglv6;

namespace {

constexpr int textSize = 20'000'000;

const QString &envelopeUri()
{
    static const QString uri = u"http://schemas.xmlsoap.org/soap/envelope/"_qs;
    return uri;
}

/*! As base64 has it: no markup in it. */
const QString &longText()
{
    static const QString text = [] {
        QString letters(textSize, Qt::Uninitialized);
        for (int i = 0; i < textSize; ++i) {
            letters[i] = QChar(u'A' + i % 26);
        }
        return letters;
    }();
    return text;
}

bool message()
{
    QByteArray document;
    {
        QtSoapMessage request;
        request.setMethod(u"SendText"_qs, u"urn:bench"_qs);
        request.addMethodArgument(u"text"_qs, QString(), longText());
        document = request.toXmlString(0).toUtf8();
    }
    QtSoapMessage received;
    return received.setContent(document) && received.returnValue().toString() == longText();
}

QString plainDocument()
{
    QDomDocument document;
    QDomElement envelope = document.createElementNS(envelopeUri(), u"SOAP-ENV:Envelope"_qs);
    document.appendChild(envelope);
    envelope.setAttribute(u"SOAP-ENV:encodingStyle"_qs, u"http://schemas.xmlsoap.org/soap/encoding/"_qs);
    envelope.setAttribute(u"xmlns:xsd"_qs, u"http://www.w3.org/1999/XMLSchema"_qs);
    QDomElement body = document.createElementNS(envelopeUri(), u"SOAP-ENV:Body"_qs);
    envelope.appendChild(body);
    QDomElement method = document.createElementNS(u"urn:bench"_qs, u"SendText"_qs);
    body.appendChild(method);
    QDomElement text = document.createElement(u"text"_qs);
    text.setAttributeNS(u"http://www.w3.org/1999/XMLSchema-instance"_qs, u"xsi:type"_qs, u"xsd:string"_qs);
    text.appendChild(document.createTextNode(longText()));
    method.appendChild(text);
    return document.toString(0);
}

bool domDocument()
{
    const QByteArray document = plainDocument().toUtf8();
    QDomDocument received;
    return received.setContent(document, true)
        && received.documentElement().firstChildElement().firstChildElement().text() == longText();
}

#ifdef HAS_GENERATED_TEXT
bool generated()
{
    const std::string text = longText().toStdString();
    return readGeneratedText(writeGeneratedText(text)) == text;
}
#endif

struct Candidate
{
    const char *name;
    bool (*work)();
};

constexpr Candidate candidates[] = {
    {"message", message},
    {"domDocument", domDocument},
#ifdef HAS_GENERATED_TEXT
    {"generated", generated},
#endif
};

bool doOnce(const QByteArray &name)
{
    const auto *candidate = std::find_if(std::begin(candidates), std::end(candidates),
                                         [&name](const Candidate &one) { return name == one.name; });
    return candidate != std::end(candidates) && candidate->work();
}

void measure(benchmark::State &state, const Candidate &candidate)
{
    longText();
    for ([[maybe_unused]] auto round : state) {
        if (!candidate.work()) {
            state.SkipWithError("the text did not come back");
            break;
        }
    }
    state.SetBytesProcessed(state.iterations() * textSize);
    state.counters["peak_MiB"] = peakInOwnProcess({QLatin1StringView(candidate.name)});
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc == 3 && QByteArray(argv[1]) == "--peak") {
        longText(); // there before the work begins
        return printPeak([argv] { return doOnce(argv[2]); });
    }
    for (const Candidate &candidate : candidates) {
        benchmark::RegisterBenchmark(candidate.name, measure, candidate)->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
