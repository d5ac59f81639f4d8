// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Options.h"

#include "utilsDll/frame/SharedConstants.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QTextStream>

using namespace ZYX_zglv6;

namespace {

QUrl readService(QCommandLineParser &parser, const QCommandLineOption &option)
{
    if (!parser.isSet(option)) {
        return QUrl();
    }
    const QString value = parser.value(option);
    const QUrl address(u"http://"_qs + value, QUrl::StrictMode);
    if (address.host().isEmpty() || !address.path().isEmpty() || address.hasQuery() || address.hasFragment()
        || value.contains(u'@') || address.port() == 0) {
        QTextStream(stderr) << "crashSender: a service is a host, or a host and a port" << Qt::endl;
        parser.showHelp(1);
    }
    return address;
}

} // namespace

Options parseOptions()
{
    const QCommandLineOption product(u"product"_qs, u"Name of the product that has crashed."_qs, u"name"_qs,
                                     productDisplayName);
    const QCommandLineOption email(u"email"_qs, u"Address for questions."_qs, u"address"_qs);
    const QCommandLineOption comment(u"comment"_qs, u"What the user was doing."_qs, u"text"_qs);
    const QCommandLineOption service(u"service"_qs, u"The service, in place of the one in the preferences file."_qs,
                                     u"host:port"_qs);
    const QCommandLineOption copy(u"copy"_qs, u"Save a copy of the report."_qs, u"file.zip"_qs);
    const QCommandLineOption send(u"send"_qs,
                                  u"Send the report at once and leave; 0: it has arrived, or nothing waits."_qs);
    const QCommandLineOption snapshot(u"snapshot"_qs, u"Write a picture of the window."_qs, u"file.png"_qs);
    const QCommandLineOption leave(u"leave"_qs, u"Leave as soon as the window is shown."_qs);

    QCommandLineParser parser;
    parser.setApplicationDescription(u"Shows the report of a crash, and sends it to the product's makers."_qs);
    parser.addHelpOption();
    addStartUpOptions(parser);
    parser.addOptions({product, email, comment, service, copy, send, snapshot, leave});
    parser.process(*QCoreApplication::instance());
    refuseSurplusArguments(parser, 0);

    Options options;
    static_cast<StartUpOptions &>(options) = readStartUpOptions(parser);
    options.product = parser.value(product);
    options.email = parser.value(email);
    options.comment = parser.value(comment);
    options.service = readService(parser, service);
    options.copy = parser.value(copy);
    options.snapshot = parser.value(snapshot);
    options.send = parser.isSet(send);
    options.leave = parser.isSet(leave);
    return options;
}
