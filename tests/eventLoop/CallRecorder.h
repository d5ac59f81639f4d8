// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QVariant>

#include <functional>

struct RecordedCall
{
    QByteArray method;
    QVariantList arguments;

    bool operator==(const RecordedCall &other) const = default;
};

/*! Has slots of 0 to 9 parameters and writes down which of them are called, with what. */
class CallRecorder : public QObject
{
    Q_OBJECT

public:
    /*! What a slot does after it has written down its call. May delete the recorder. */
    std::function<void(const RecordedCall &)> reaction;

    QList<RecordedCall> calls;

    /*! How many times \a method was called. */
    qsizetype count(const QByteArray &method) const;

public Q_SLOTS:
    void tick();
    void tock();
    void changeImage();
    void call();
    void call(bool a);
    void call(bool a, int b);
    void call(bool a, int b, double c);
    void call(bool a, int b, double c, const QString &d);
    void call(bool a, int b, double c, const QString &d, QObject *e);
    void call(bool a, int b, double c, const QString &d, QObject *e, bool f);
    void call(bool a, int b, double c, const QString &d, QObject *e, bool f, int g);
    void call(bool a, int b, double c, const QString &d, QObject *e, bool f, int g, double h);
    void call(bool a, int b, double c, const QString &d, QObject *e, bool f, int g, double h, const QString &i);

private:
    void record(const QByteArray &method, const QVariantList &arguments);
};
