// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "interfaces/StateBytes.h"
#include "support/AssertionReports.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"
#include "support/VirtualSlot.h"

#include "interfaces/SerializableImpl.h"

#include <QtCore/QDataStream>
#include <QtCore/QMap>
#include <QtCore/QPointer>
#include <QtCore/QRandomGenerator>
#include <QtCore/QRect>
#include <QtCore/QRegularExpression>
#include <QtCore/QVariant>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QWidget>

#include <functional>
#include <utility>

using namespace TestSupport;

namespace {

constexpr int flipSeed = 2718;

/*! A widget whose state is whatever bytes it was given. */
class Part : public QWidget, public SerializableUiImpl
{
public:
    explicit Part(const QVariant &guid, QByteArray partState = QByteArray("default"), QWidget *parent = nullptr)
        : QWidget(parent)
        , state(std::move(partState))
    {
        setProperty("GUID", guid);
    }

    QByteArray serializeExclusive() const override
    {
        if (onStore) {
            onStore();
        }
        return state;
    }

    void deserializeExclusive(const QByteArray &bytes) override
    {
        state = bytes;
        ++countOfRestores;
        if (onRestore) {
            onRestore(); // keep last: it may delete this part
        }
    }

    QObject *getObject() override
    {
        return this;
    }

    const QObject *getObject() const override
    {
        return this;
    }

    QByteArray state;
    int countOfRestores = 0;
    std::function<void()> onStore;
    std::function<void()> onRestore;
};

/*! A widget that fills in the whole interface itself. */
class IndependentPart final : public QWidget, public ISerializableUiInterface
{
public:
    using QWidget::QWidget;

    QByteArray serialize() const override
    {
        return "all of it";
    }

    void deserialize(const QByteArray &bytes, bool /*flag*/, const QString & /*text*/) override
    {
        state = "by deserialize: " + bytes;
    }

    bool equal(const QByteArray & /*first*/, const QByteArray & /*second*/) const override
    {
        return false;
    }

    QString id() const override
    {
        return u"independent"_qs;
    }

    QByteArray serializeExclusive() const override
    {
        return state;
    }

    void deserializeExclusive(const QByteArray &bytes) override
    {
        state = bytes;
    }

    bool serializable() const override
    {
        return isWanted;
    }

    QByteArray state;
    bool isWanted = true;
};

/*! No QObject, so without any properties. */
class Propertyless final : public SerializableUiImpl
{
public:
    QByteArray serializeExclusive() const override
    {
        return {};
    }

    void deserializeExclusive(const QByteArray & /*data*/) override
    {
    }

    QObject *getObject() override
    {
        return nullptr;
    }

    const QObject *getObject() const override
    {
        return nullptr;
    }
};

QString addressOf(const SerializableUiImpl &part)
{
    return QString::number(reinterpret_cast<quintptr>(&part), 10);
}

void restore(Part &form, const QByteArray &data)
{
    form.deserialize(data, false, QString());
}

/*! Three parts in a form, as a settings panel has them. */
struct Panel
{
    Panel()
        : form(u"form"_qs, "of the form")
        , first(new Part(u"a"_qs, QByteArray("\0\1", 2), &form))
        , second(new Part(u"\u044f"_qs, QByteArray(), &form))
        , inner(new Part(u"c"_qs, "inner", second))
    {
    }

    QList<Part *> parts()
    {
        return {first, second, inner, &form};
    }

    Part form;
    Part *first;
    Part *second;
    Part *inner;
};

using PartStates = QMap<QString, QByteArray>;

/*! Reads stored states by hand, up to the first value that is no byte array. */
class BlobReader
{
public:
    explicit BlobReader(QByteArray bytes)
        : m_bytes(std::move(bytes))
    {
    }

    /*! None if the bytes end too early or can't be right. */
    PartStates states()
    {
        PartStates result;
        for (quint32 left = number(); left > 0 && !m_isDamaged; --left) {
            const QString key = text();
            const quint32 typeId = number();
            take(1);
            m_hasOtherType = !m_isDamaged && typeId != 12;
            if (m_hasOtherType) {
                return result;
            }
            result.insert(key, block());
        }
        return m_isDamaged ? PartStates() : result;
    }

    bool hasOtherType() const
    {
        return m_hasOtherType;
    }

private:
    QByteArray take(quint32 size)
    {
        m_isDamaged = m_isDamaged || size > m_bytes.size() - m_place;
        if (m_isDamaged) {
            return {};
        }
        m_place += size;
        return m_bytes.mid(m_place - size, size);
    }

    quint32 number()
    {
        const QByteArray bytes = take(4);
        return m_isDamaged ? 0 : qFromBigEndian<quint32>(bytes.constData());
    }

    QByteArray block()
    {
        const quint32 size = number();
        return size == 0xffffffff ? QByteArray() : take(size);
    }

    QString text()
    {
        const QByteArray bytes = block();
        m_isDamaged = m_isDamaged || bytes.size() % 2 != 0;
        QString result;
        for (qsizetype i = 0; i + 1 < bytes.size(); i += 2) {
            result.append(QChar(qFromBigEndian<quint16>(bytes.constData() + i)));
        }
        return result;
    }

    QByteArray m_bytes;
    qsizetype m_place = 0;
    bool m_isDamaged = false;
    bool m_hasOtherType = false;
};

/*! Of a part that has taken in \a data with \a states in front of the first value of another type, if there is one. */
QString faultOf(const Part &part, const QByteArray &data, const PartStates &states, bool hasOtherType)
{
    const bool isTold = states.contains(part.id());
    const qsizetype places = data.count(textBytes(part.id())); // behind the other value may be more of this part
    const int least = isTold ? 1 : 0;
    const int most = hasOtherType && places > 0 ? 1 : least;
    if (part.countOfRestores < least || part.countOfRestores > most) {
        return u"%1 was restored %2 times by %3"_qs.arg(part.id())
            .arg(part.countOfRestores)
            .arg(QString::fromLatin1(data.toHex()));
    }
    const bool isLastWord = !hasOtherType || places == 1;
    if (isTold && isLastWord && part.state != states.value(part.id())) {
        return u"%1 has another state after %2"_qs.arg(part.id(), QString::fromLatin1(data.toHex()));
    }
    return {};
}

/*!
    What is wrong after a panel has taken in \a data; empty if each part has what the data hold of it. With a value of
    another type among them it may also be that no part has taken anything.
*/
QString faultAfterRestoring(const QByteArray &data)
{
    Panel panel;
    restore(panel.form, data);
    int countOfRestores = 0;
    for (const Part *part : panel.parts()) {
        countOfRestores += part->countOfRestores;
    }
    BlobReader reader(data);
    const PartStates states = reader.states();
    if (reader.hasOtherType() && countOfRestores == 0) {
        return {};
    }
    QString fault;
    for (const Part *part : panel.parts()) {
        fault += faultOf(*part, data, states, reader.hasOtherType());
    }
    return fault;
}

/*! The report without the file and the line, that is "form: text". */
QStringList withoutPlaces(const QStringList &reports)
{
    static const QRegularExpression place(u" in \\S*SerializableImpl\\.cpp line \\d+"_qs);
    QStringList result = reports;
    result.replaceInStrings(place, QString());
    return result;
}

} // namespace

class tst_SerializableImpl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void slots_areInTheToldOrder();
    void interfaces_haveNoData();
    void serialize_writesTheToldBytes();
    void serialize_writesEntriesInKeyOrder();
    void serialize_ofALoneForm_hasItsEntry();
    void serialize_isReadByAPlainStream();
    void serialize_reachesPartsInsideOtherWidgets();
    void serialize_storesPartsOfTheBareInterface();
    void serialize_leavesOutPartsThatAreNotSerializable();
    void serialize_storesTheFormThatIsNotSerializable();
    void serialize_withoutGuid_usesTheAddress();
    void serialize_ofTwoPartsWithOneGuid_reportsAndKeepsTheLater_data();
    void serialize_ofTwoPartsWithOneGuid_reportsAndKeepsTheLater();
    void serialize_ofThreePartsWithOneGuid_reportsEachFurtherOne();
    void serialize_ofPartWithTheFormsGuid_reportsAndKeepsTheForm();
    void serialize_ofTwoPartsWithEmptyGuid_reports();
    void deserialize_givesEachPartItsState();
    void deserialize_restoresPartsOfTheBareInterface();
    void deserialize_matchesByGuidNotByPlace();
    void deserialize_leavesAddedPartAlone();
    void deserialize_ignoresEntryWithoutPart();
    void deserialize_leavesOutPartsThatAreNotSerializable();
    void deserialize_restoresTheFormThatIsNotSerializable();
    void deserialize_restoresTheFormLast();
    void deserialize_ofEmptyArray_restoresNothingAndLogsNothing();
    void deserialize_doesNotUseFlagAndText_data();
    void deserialize_doesNotUseFlagAndText();
    void deserialize_ofTwoPartsWithOneGuid_restoresBoth();
    void deserialize_ofValuesOfOtherTypes_givesThemAsBytes_data();
    void deserialize_ofValuesOfOtherTypes_givesThemAsBytes();
    void deserialize_ignoresBytesBehindTheStates();
    void serialize_whileAPartDeletesAnother_leavesThatOut();
    void deserialize_whileAPartTakesAnotherOutOrIn_goesByTheStateBefore();
    void deserialize_whileAPartDeletesAnother_leavesThatOut();
    void deserialize_whileAPartDeletesItself_restoresTheOthers();
    void deserialize_whileAPartDeletesTheForm_stops();
    void deserialize_whileTheFormDeletesItself_ends();
    void deserialize_ofDamagedStates_changesNothingAndLogsAWarning_data();
    void deserialize_ofDamagedStates_changesNothingAndLogsAWarning();
    void deserialize_ofUndamagedStates_logsNothing();
    void deserialize_ofEveryPrefix_changesNothing();
    void deserialize_ofOneChangedByte_restoresWhatCanBeRead();
    void deserialize_ofRandomFlips_restoresWhatCanBeRead();
    void equal_comparesSizeAndBytes_data();
    void equal_comparesSizeAndBytes();
    void id_isTheGuid_data();
    void id_isTheGuid();
    void id_withoutGuid_isTheAddressInDecimal();
    void id_withoutQObject_isTheAddressInDecimal();
    void serializable_isTheProperty_data();
    void serializable_isTheProperty();
    void serializable_withoutQObject_isTrue();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_SerializableImpl::slots_areInTheToldOrder()
{
    if (!virtualSlot(&ISerializableInterface::serialize)) {
        QSKIP("Only pointers to members of the Itanium ABI tell the slot.");
    }
    QCOMPARE(*virtualSlot(&ISerializableInterface::serialize), 0);
    QCOMPARE(*virtualSlot(&ISerializableInterface::deserialize), 1);
    QCOMPARE(*virtualSlot(&ISerializableInterface::equal), 2);
    QCOMPARE(*virtualSlot(&ISerializableInterface::id), 3);
    QCOMPARE(*virtualSlot(&ISerializableUiInterface::serializeExclusive), 4);
    QCOMPARE(*virtualSlot(&ISerializableUiInterface::deserializeExclusive), 5);
    QCOMPARE(*virtualSlot(&ISerializableUiInterface::serializable), 6);
    using Getter = QObject *(SerializableUiImpl::*)();
    using ConstGetter = const QObject *(SerializableUiImpl::*)() const;
    QCOMPARE(*virtualSlot(static_cast<Getter>(&SerializableUiImpl::getObject)), 7);
    QCOMPARE(*virtualSlot(static_cast<ConstGetter>(&SerializableUiImpl::getObject)), 8);
    QCOMPARE(*virtualSlot(&SerializableUiImpl::serializable), 6);
}

void tst_SerializableImpl::interfaces_haveNoData()
{
    QCOMPARE(sizeof(ISerializableInterface), sizeof(void *));
    QCOMPARE(sizeof(ISerializableUiInterface), sizeof(void *));
    QCOMPARE(sizeof(SerializableUiImpl), sizeof(void *));
}

void tst_SerializableImpl::serialize_writesTheToldBytes()
{
    const Panel panel;
    QCOMPARE(panel.form.serialize(),
             mapBytes({{u"a"_qs, arrayValueBytes(QByteArray("\0\1", 2))},
                       {u"c"_qs, arrayValueBytes("inner")},
                       {u"form"_qs, arrayValueBytes("of the form")},
                       {u"\u044f"_qs, arrayValueBytes(QByteArray())}}));
}

void tst_SerializableImpl::serialize_writesEntriesInKeyOrder()
{
    Part form(u"b"_qs, "form");
    for (const QString &guid : {u"\u044f"_qs, u"a"_qs, u"10"_qs, u"B"_qs, u"9"_qs, u""_qs, u"ba"_qs}) {
        new Part(guid, guid.toUtf8(), &form);
    }
    QCOMPARE(form.serialize(),
             mapBytes({{u""_qs, arrayValueBytes("")},
                       {u"10"_qs, arrayValueBytes("10")},
                       {u"9"_qs, arrayValueBytes("9")},
                       {u"B"_qs, arrayValueBytes("B")},
                       {u"a"_qs, arrayValueBytes("a")},
                       {u"b"_qs, arrayValueBytes("form")},
                       {u"ba"_qs, arrayValueBytes("ba")},
                       {u"\u044f"_qs, arrayValueBytes("\xd1\x8f")}}));
}

void tst_SerializableImpl::serialize_ofALoneForm_hasItsEntry()
{
    const Part form(u"form"_qs, "");
    QCOMPARE(form.serialize(), mapBytes({{u"form"_qs, arrayValueBytes("")}}));
}

void tst_SerializableImpl::serialize_isReadByAPlainStream()
{
    const Panel panel;
    QDataStream stream(panel.form.serialize());
    QMap<QString, QVariant> states;
    stream >> states;
    QCOMPARE(stream.status(), QDataStream::Ok);
    QVERIFY(stream.atEnd());
    QCOMPARE(states,
             (QMap<QString, QVariant>{{u"a"_qs, QByteArray("\0\1", 2)},
                                      {u"c"_qs, QByteArray("inner")},
                                      {u"form"_qs, QByteArray("of the form")},
                                      {u"\u044f"_qs, QByteArray()}}));
}

void tst_SerializableImpl::serialize_reachesPartsInsideOtherWidgets()
{
    Part form(u"form"_qs, "0");
    auto *plain = new QWidget(&form);
    auto *plainInside = new QLabel(plain);
    plain->setProperty("GUID", u"plain"_qs);
    Part inside(u"a"_qs, "1", plainInside);
    new Part(u"b"_qs, "2", &inside);
    QObject notAWidget(&form);
    QCOMPARE(
        form.serialize(),
        mapBytes(
            {{u"a"_qs, arrayValueBytes("1")}, {u"b"_qs, arrayValueBytes("2")}, {u"form"_qs, arrayValueBytes("0")}}));
}

void tst_SerializableImpl::serialize_storesPartsOfTheBareInterface()
{
    Part form(u"form"_qs, "0");
    auto *part = new IndependentPart(new QWidget(&form));
    part->setProperty("GUID", u"not asked for"_qs);
    part->setProperty("Serializable", false);
    part->state = "1";
    QCOMPARE(form.serialize(),
             mapBytes({{u"form"_qs, arrayValueBytes("0")}, {u"independent"_qs, arrayValueBytes("1")}}));
    part->isWanted = false;
    QCOMPARE(form.serialize(), mapBytes({{u"form"_qs, arrayValueBytes("0")}}));
}

void tst_SerializableImpl::serialize_leavesOutPartsThatAreNotSerializable()
{
    const Panel panel;
    panel.second->setProperty("Serializable", false); // but the part inside it stays
    panel.first->setProperty("Serializable", true);
    QCOMPARE(panel.form.serialize(),
             mapBytes({{u"a"_qs, arrayValueBytes(QByteArray("\0\1", 2))},
                       {u"c"_qs, arrayValueBytes("inner")},
                       {u"form"_qs, arrayValueBytes("of the form")}}));
}

void tst_SerializableImpl::serialize_storesTheFormThatIsNotSerializable()
{
    Part form(u"form"_qs, "kept");
    form.setProperty("Serializable", false);
    QVERIFY(!form.serializable());
    QCOMPARE(form.serialize(), mapBytes({{u"form"_qs, arrayValueBytes("kept")}}));
}

void tst_SerializableImpl::serialize_withoutGuid_usesTheAddress()
{
    Part form(QVariant(), "form");
    auto *part = new Part(QVariant(), "part", &form);
    const PartStates expected{{addressOf(form), "form"}, {addressOf(*part), "part"}};
    QCOMPARE(BlobReader(form.serialize()).states(), expected);

    const QByteArray data = form.serialize();
    part->state = "changed";
    restore(form, data); // in the same run the address still finds it
    QCOMPARE(part->state, QByteArray("part"));
}

void tst_SerializableImpl::serialize_ofTwoPartsWithOneGuid_reportsAndKeepsTheLater_data()
{
    QTest::addColumn<QString>("guid");

    QTest::newRow("word") << u"same"_qs;
    QTest::newRow("identifier") << u"{67C8770B-44F1-410A-AB9A-F9B5446F13EE}"_qs;
    QTest::newRow("not Latin") << u"\u0440\u044f\u0434 \u4e00 \U0001f4f7"_qs;
    QTest::newRow("place markers") << u"%1 %2 %s %n"_qs;
}

void tst_SerializableImpl::serialize_ofTwoPartsWithOneGuid_reportsAndKeepsTheLater()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const QString, guid);
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    const AssertionReports reports;
    Part form(u"form"_qs, "form");
    new Part(guid, "earlier", &form);
    new Part(guid, "later", &form);
    new Part(u"z"_qs, "behind", &form);

    const PartStates expected{{u"form"_qs, "form"}, {guid, "later"}, {u"z"_qs, "behind"}};
    QCOMPARE(BlobReader(form.serialize()).states(), expected);
    const QString text = u"GUID already exists. Property in form need to be changed. GUID: " + guid;
    QCOMPARE(withoutPlaces(reports.texts()), QStringList(u"ASSERT_X_RETURN: " + text));
    QCOMPARE(withoutPlaces(log.records()),
             QStringList(u"ERROR SerializableUiImpl::serialize: ASSERT_X_RETURN: " + text));
}

void tst_SerializableImpl::serialize_ofThreePartsWithOneGuid_reportsEachFurtherOne()
{
    const AssertionReports reports;
    Part form(u"form"_qs, "form");
    auto *outer = new Part(u"same"_qs, "1", &form);
    new Part(u"same"_qs, "2", outer);
    new Part(u"same"_qs, "3", &form);
    const QByteArray data = form.serialize();
    QCOMPARE(reports.texts().size(), 2);
    QCOMPARE(BlobReader(data).states().size(), 2);
}

void tst_SerializableImpl::serialize_ofPartWithTheFormsGuid_reportsAndKeepsTheForm()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    const AssertionReports reports;
    Part form(u"same"_qs, "of the form");
    new Part(u"same"_qs, "of the part", &form);

    QCOMPARE(form.serialize(), mapBytes({{u"same"_qs, arrayValueBytes("of the form")}}));
    const QString text = u"ASSERT_X_RETURN: GUID already exists. Property in form need to be changed"_qs;
    QCOMPARE(withoutPlaces(reports.texts()), QStringList(text));
    QCOMPARE(withoutPlaces(log.records()), QStringList(u"ERROR SerializableUiImpl::serialize: " + text));
}

void tst_SerializableImpl::serialize_ofTwoPartsWithEmptyGuid_reports()
{
    const AssertionReports reports;
    Part form(u"form"_qs, "form");
    new Part(u""_qs, "1", &form);
    new Part(u""_qs, "2", &form);
    QCOMPARE(form.serialize(), mapBytes({{u""_qs, arrayValueBytes("2")}, {u"form"_qs, arrayValueBytes("form")}}));
    QCOMPARE(withoutPlaces(reports.texts()),
             QStringList(u"ASSERT_X_RETURN: GUID already exists. Property in form need to be changed. GUID: "_qs));
}

void tst_SerializableImpl::deserialize_givesEachPartItsState()
{
    const QByteArray data = Panel().form.serialize();
    Panel panel;
    for (Part *part : panel.parts()) {
        part->state = "other";
    }
    restore(panel.form, data);
    QCOMPARE(panel.first->state, QByteArray("\0\1", 2));
    QCOMPARE(panel.second->state, QByteArray());
    QCOMPARE(panel.inner->state, QByteArray("inner"));
    QCOMPARE(panel.form.state, QByteArray("of the form"));
    QCOMPARE(panel.form.countOfRestores, 1);
    QCOMPARE(panel.form.serialize(), data);
}

void tst_SerializableImpl::deserialize_restoresPartsOfTheBareInterface()
{
    Part form(u"form"_qs);
    auto *part = new IndependentPart(new QWidget(&form));
    restore(form, mapBytes({{u"independent"_qs, arrayValueBytes("stored")}}));
    QCOMPARE(part->state, QByteArray("stored"));
    part->isWanted = false;
    restore(form, mapBytes({{u"independent"_qs, arrayValueBytes("other")}}));
    QCOMPARE(part->state, QByteArray("stored"));
}

void tst_SerializableImpl::deserialize_matchesByGuidNotByPlace()
{
    Part form(u"form"_qs);
    auto *moved = new Part(u"c"_qs, "other", &form); // was inside another part
    auto *inside = new Part(u"a"_qs, "other", new QWidget(moved));
    restore(form, Panel().form.serialize());
    QCOMPARE(moved->state, QByteArray("inner"));
    QCOMPARE(inside->state, QByteArray("\0\1", 2));
}

void tst_SerializableImpl::deserialize_leavesAddedPartAlone()
{
    Panel panel;
    const QByteArray data = panel.form.serialize();
    const auto *added = new Part(u"added"_qs, "default", &panel.form);
    restore(panel.form, data);
    QCOMPARE(added->state, QByteArray("default"));
    QCOMPARE(added->countOfRestores, 0);
    QCOMPARE(panel.first->countOfRestores, 1);
}

void tst_SerializableImpl::deserialize_ignoresEntryWithoutPart()
{
    Panel panel;
    restore(panel.form, mapBytes({{u"a"_qs, arrayValueBytes("new")}, {u"gone"_qs, arrayValueBytes("1")}}));
    QCOMPARE(panel.first->state, QByteArray("new"));
    QCOMPARE(panel.second->countOfRestores + panel.inner->countOfRestores + panel.form.countOfRestores, 0);
}

void tst_SerializableImpl::deserialize_leavesOutPartsThatAreNotSerializable()
{
    Panel panel;
    const QByteArray data = panel.form.serialize();
    panel.second->setProperty("Serializable", false);
    restore(panel.form, data);
    QCOMPARE(panel.second->countOfRestores, 0);
    QCOMPARE(panel.inner->countOfRestores, 1);
}

void tst_SerializableImpl::deserialize_restoresTheFormThatIsNotSerializable()
{
    Part form(u"form"_qs);
    form.setProperty("Serializable", false);
    restore(form, mapBytes({{u"form"_qs, arrayValueBytes("stored")}}));
    QCOMPARE(form.state, QByteArray("stored"));
}

void tst_SerializableImpl::deserialize_restoresTheFormLast()
{
    Panel panel;
    QStringList order;
    for (Part *part : panel.parts()) {
        part->onRestore = [&order, part] { order.append(part->id()); };
    }
    restore(panel.form, panel.form.serialize());
    QCOMPARE(order.size(), 4);
    QCOMPARE(order.last(), u"form"_qs);
}

void tst_SerializableImpl::deserialize_ofEmptyArray_restoresNothingAndLogsNothing()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    Panel panel;
    for (const QByteArray &empty : {QByteArray(), QByteArray("")}) {
        restore(panel.form, empty);
    }
    for (const Part *part : panel.parts()) {
        QCOMPARE(part->countOfRestores, 0);
    }
    QCOMPARE(log.records(), QStringList());
}

void tst_SerializableImpl::deserialize_doesNotUseFlagAndText_data()
{
    QTest::addColumn<bool>("flag");
    QTest::addColumn<QString>("text");

    QTest::newRow("neither") << false << QString();
    QTest::newRow("flag") << true << QString();
    QTest::newRow("text") << false << u"a"_qs;
    QTest::newRow("both") << true << u"form"_qs;
}

void tst_SerializableImpl::deserialize_doesNotUseFlagAndText()
{
    QFETCH(const bool, flag);
    QFETCH(const QString, text);
    Panel panel;
    panel.form.deserialize(mapBytes({{u"a"_qs, arrayValueBytes("new")}}), flag, text);
    QCOMPARE(panel.first->state, QByteArray("new"));
    QCOMPARE(panel.second->countOfRestores + panel.inner->countOfRestores + panel.form.countOfRestores, 0);
}

void tst_SerializableImpl::deserialize_ofTwoPartsWithOneGuid_restoresBoth()
{
    Part form(u"form"_qs);
    const auto *first = new Part(u"same"_qs, "1", &form);
    const auto *second = new Part(u"same"_qs, "2", &form);
    restore(form, mapBytes({{u"same"_qs, arrayValueBytes("stored")}}));
    QCOMPARE(first->state, QByteArray("stored"));
    QCOMPARE(second->state, QByteArray("stored"));
}

void tst_SerializableImpl::deserialize_ofValuesOfOtherTypes_givesThemAsBytes_data()
{
    QTest::addColumn<QByteArray>("valueBytes");
    QTest::addColumn<QByteArray>("state");

    QTest::newRow("text") << typeBytes(QMetaType::QString) + textBytes(u"\u00e9"_qs) << QByteArray("\xc3\xa9");
    QTest::newRow("number") << typeBytes(QMetaType::Int) + numberBytes(42) << QByteArray("42");
    QTest::newRow("bool") << boolValueBytes(true) << QByteArray("true");
    QTest::newRow("list") << typeBytes(QMetaType::QVariantList) + numberBytes(0) << QByteArray();
    QTest::newRow("nothing") << typeBytes(QMetaType::UnknownType) << QByteArray();
}

void tst_SerializableImpl::deserialize_ofValuesOfOtherTypes_givesThemAsBytes()
{
    QFETCH(const QByteArray, valueBytes);
    QFETCH(const QByteArray, state);
    Panel panel;
    restore(panel.form, mapBytes({{u"a"_qs, valueBytes}, {u"form"_qs, valueBytes}}));
    QCOMPARE(panel.first->state, state);
    QCOMPARE(panel.first->countOfRestores, 1);
    QCOMPARE(panel.form.state, state);
    QCOMPARE(panel.form.countOfRestores, 1);
}

void tst_SerializableImpl::deserialize_ignoresBytesBehindTheStates()
{
    Panel panel;
    restore(panel.form, mapBytes({{u"a"_qs, arrayValueBytes("new")}}) + "more");
    QCOMPARE(panel.first->state, QByteArray("new"));
}

void tst_SerializableImpl::serialize_whileAPartDeletesAnother_leavesThatOut()
{
    Part form(u"form"_qs, "0");
    Part first(u"a"_qs, "1", &form);
    auto *second = new Part(u"b"_qs, "2", &form);
    first.onStore = [second = QPointer<Part>(second)] { delete second; };
    QCOMPARE(form.serialize(), mapBytes({{u"a"_qs, arrayValueBytes("1")}, {u"form"_qs, arrayValueBytes("0")}}));
}

void tst_SerializableImpl::deserialize_whileAPartTakesAnotherOutOrIn_goesByTheStateBefore()
{
    Panel panel;
    const QByteArray data = panel.form.serialize();
    panel.inner->setProperty("Serializable", false);
    panel.first->onRestore = [&panel] {
        panel.second->setProperty("Serializable", false);
        panel.inner->setProperty("Serializable", true);
    };
    restore(panel.form, data);
    QCOMPARE(panel.first->countOfRestores, 1);
    QCOMPARE(panel.second->countOfRestores, 1);
    QCOMPARE(panel.inner->countOfRestores, 0);

    restore(panel.form, data);
    QCOMPARE(panel.first->countOfRestores, 2);
    QCOMPARE(panel.second->countOfRestores, 1);
    QCOMPARE(panel.inner->countOfRestores, 1);
}

void tst_SerializableImpl::deserialize_whileAPartDeletesAnother_leavesThatOut()
{
    Panel panel;
    const QByteArray data = panel.form.serialize();
    const QPointer<Part> second(panel.second);
    const QPointer<Part> inner(panel.inner);
    panel.first->onRestore = [&panel] { delete panel.second; };
    restore(panel.form, data);
    QVERIFY(second == nullptr && inner == nullptr);
    QCOMPARE(panel.first->countOfRestores, 1);
    QCOMPARE(panel.form.countOfRestores, 1);
}

void tst_SerializableImpl::deserialize_whileAPartDeletesItself_restoresTheOthers()
{
    Panel panel;
    const QByteArray data = panel.form.serialize();
    const QPointer<Part> second(panel.second);
    panel.second->onRestore = [&panel] { delete panel.second; };
    restore(panel.form, data);
    QVERIFY(second == nullptr);
    QCOMPARE(panel.first->countOfRestores, 1);
    QCOMPARE(panel.form.countOfRestores, 1);
}

void tst_SerializableImpl::deserialize_whileAPartDeletesTheForm_stops()
{
    auto *form = new Part(u"form"_qs);
    auto *first = new Part(u"a"_qs, "1", form);
    new Part(u"b"_qs, "2", form);
    const QByteArray data = form->serialize();
    const QPointer<Part> formLeft(form);
    int countOfRestores = 0;
    form->onRestore = [&countOfRestores] { ++countOfRestores; };
    first->onRestore = [form] { delete form; };
    restore(*form, data);
    QVERIFY(formLeft == nullptr);
    QCOMPARE(countOfRestores, 0);
}

void tst_SerializableImpl::deserialize_whileTheFormDeletesItself_ends()
{
    auto *form = new Part(u"form"_qs);
    const QPointer<Part> formLeft(form);
    form->onRestore = [form] { delete form; };
    restore(*form, form->serialize());
    QVERIFY(formLeft == nullptr);
}

void tst_SerializableImpl::deserialize_ofDamagedStates_changesNothingAndLogsAWarning_data()
{
    QTest::addColumn<QByteArray>("data");

    constexpr int deep = 100'000;
    const QByteArray good = textBytes(u"a"_qs) + arrayValueBytes("new");
    const QByteArray level = typeBytes(QMetaType::QVariantList) + numberBytes(1);
    const QByteArray namedLevel = namedTypeBytes("QVariantList") + numberBytes(1);
    const QByteArray nothing = typeBytes(QMetaType::UnknownType);
    const QByteArray front = numberBytes(2) + good + textBytes(u"form"_qs);
    QTest::newRow("one byte") << QByteArray("x");
    QTest::newRow("text") << QByteArray("This is no stored state.");
    QTest::newRow("one entry too few") << numberBytes(2) + good;
    QTest::newRow("countless entries") << numberBytes(0xffffffff) + good;
    QTest::newRow("deep lists") << front + level.repeated(deep) + nothing;
    QTest::newRow("deep lists by name") << front + namedLevel.repeated(deep) + nothing;
    for (const QMetaType::Type type : {QMetaType::QVariantList, QMetaType::QVariantMap, QMetaType::QVariantHash,
                                       QMetaType::QStringList, QMetaType::QPolygon, QMetaType::QTextFormat}) {
        QTest::addRow("countless %s", QMetaType(type).name())
            << front + typeBytes(quint32(type)) + numberBytes(0xffffffff);
    }
    QTest::newRow("half a pair") << front + typeBytes(QMetaType::QVariantPair) + boolValueBytes(true);
}

void tst_SerializableImpl::deserialize_ofDamagedStates_changesNothingAndLogsAWarning()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const QByteArray, data);
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    Panel panel;
    restore(panel.form, data);
    for (const Part *part : panel.parts()) {
        QCOMPARE(part->countOfRestores, 0);
    }
    QCOMPARE(log.records(), QStringList(u"WARN SerializableUiImpl::deserialize: The stored state is damaged"_qs));
}

void tst_SerializableImpl::deserialize_ofUndamagedStates_logsNothing()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    Panel panel;
    restore(panel.form, panel.form.serialize());
    restore(panel.form, mapBytes({}));
    QCOMPARE(panel.form.countOfRestores, 1);
    QCOMPARE(log.records(), QStringList());
}

void tst_SerializableImpl::deserialize_ofEveryPrefix_changesNothing()
{
    const QByteArray data = Panel().form.serialize();
    for (qsizetype size = 0; size < data.size(); ++size) {
        Panel panel;
        restore(panel.form, data.first(size));
        for (const Part *part : panel.parts()) {
            QVERIFY2(part->countOfRestores == 0, qPrintable(QString::number(size)));
        }
    }
    QCOMPARE(faultAfterRestoring(data), QString());
}

void tst_SerializableImpl::deserialize_ofOneChangedByte_restoresWhatCanBeRead()
{
    const AssertionReports quiet; // Qt warns of each type that it does not know
    const QByteArray data = Panel().form.serialize();
    for (qsizetype i = 0; i < data.size(); ++i) {
        for (int mask = 1; mask < 256; ++mask) {
            QByteArray changed = data;
            changed[i] = char(uchar(changed[i]) ^ mask);
            const QString fault = faultAfterRestoring(changed);
            QVERIFY2(fault.isEmpty(), qPrintable(fault));
        }
    }
}

void tst_SerializableImpl::deserialize_ofRandomFlips_restoresWhatCanBeRead()
{
    const AssertionReports quiet; // Qt warns of each type that it does not know
    const QByteArray data = Panel().form.serialize();
    QRandomGenerator random(flipSeed);
    for (int round = 0; round < 10'000; ++round) {
        QByteArray changed = data;
        for (int flips = random.bounded(2, 7); flips > 0; --flips) {
            changed[random.bounded(int(changed.size()))] = char(random.bounded(256));
        }
        const QString fault = faultAfterRestoring(changed);
        QVERIFY2(fault.isEmpty(), qPrintable(fault));
    }
}

void tst_SerializableImpl::equal_comparesSizeAndBytes_data()
{
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("second");
    QTest::addColumn<bool>("isEqual");

    QTest::newRow("both null") << QByteArray() << QByteArray() << true;
    QTest::newRow("null and empty") << QByteArray() << QByteArray("") << true;
    QTest::newRow("empty and null") << QByteArray("") << QByteArray() << true;
    QTest::newRow("same") << QByteArray("abc") << QByteArray("abc") << true;
    QTest::newRow("same with zeros") << QByteArray("a\0b", 3) << QByteArray("a\0b", 3) << true;
    QTest::newRow("other behind a zero") << QByteArray("a\0b", 3) << QByteArray("a\0c", 3) << false;
    QTest::newRow("longer") << QByteArray("abc") << QByteArray("abcd") << false;
    QTest::newRow("longer by a zero") << QByteArray("abc") << QByteArray("abc", 4) << false;
    QTest::newRow("empty and a zero") << QByteArray() << QByteArray("", 1) << false;
    QTest::newRow("other last byte") << QByteArray("abc") << QByteArray("abd") << false;
    QTest::newRow("other case") << QByteArray("abc") << QByteArray("aBc") << false;
}

void tst_SerializableImpl::equal_comparesSizeAndBytes()
{
    QFETCH(const QByteArray, first);
    QFETCH(const QByteArray, second);
    const Part part(u"a"_qs);
    QTEST(part.equal(first, second), "isEqual");
}

void tst_SerializableImpl::id_isTheGuid_data()
{
    QTest::addColumn<QVariant>("guid");
    QTest::addColumn<QString>("id");

    QTest::newRow("word") << QVariant(u"row"_qs) << u"row"_qs;
    QTest::newRow("blanks") << QVariant(u"  a row "_qs) << u"  a row "_qs;
    QTest::newRow("not Latin") << QVariant(u"\u0440\u044f\u0434"_qs) << u"\u0440\u044f\u0434"_qs;
    QTest::newRow("empty") << QVariant(u""_qs) << u""_qs;
    QTest::newRow("null text") << QVariant(QString()) << QString();
    QTest::newRow("bytes") << QVariant(QByteArray("row")) << u"row"_qs;
    QTest::newRow("number") << QVariant(7) << u"7"_qs;
    QTest::newRow("bool") << QVariant(true) << u"true"_qs;
    QTest::newRow("no text at all") << QVariant(QRect(1, 2, 3, 4)) << QString();
}

void tst_SerializableImpl::id_isTheGuid()
{
    QFETCH(const QVariant, guid);
    const Part part(guid);
    QTEST(part.id(), "id");
}

void tst_SerializableImpl::id_withoutGuid_isTheAddressInDecimal()
{
    QWidget parent;
    Part part(u"row"_qs, "", &parent);
    part.setProperty("GUID", QVariant()); // takes the property away
    QCOMPARE(part.id(), addressOf(part));
    part.setProperty("guid", u"other case"_qs);
    QCOMPARE(part.id(), addressOf(part));
    QVERIFY(Part(QVariant()).id() != part.id());
}

void tst_SerializableImpl::id_withoutQObject_isTheAddressInDecimal()
{
    const Propertyless part;
    QCOMPARE(part.id(), addressOf(part));
}

void tst_SerializableImpl::serializable_isTheProperty_data()
{
    QTest::addColumn<QVariant>("property");
    QTest::addColumn<bool>("isSerializable");

    QTest::newRow("absent") << QVariant() << true;
    QTest::newRow("true") << QVariant(true) << true;
    QTest::newRow("false") << QVariant(false) << false;
    QTest::newRow("number") << QVariant(1) << true;
    QTest::newRow("zero") << QVariant(0) << false;
    QTest::newRow("text") << QVariant(u"no"_qs) << true;
    QTest::newRow("text false") << QVariant(u"false"_qs) << false;
    QTest::newRow("empty text") << QVariant(u""_qs) << false;
    QTest::newRow("no bool at all") << QVariant(QRect(1, 2, 3, 4)) << false;
}

void tst_SerializableImpl::serializable_isTheProperty()
{
    QFETCH(const QVariant, property);
    Part part(u"row"_qs);
    part.setProperty("Serializable", property);
    QTEST(part.serializable(), "isSerializable");
}

void tst_SerializableImpl::serializable_withoutQObject_isTrue()
{
    QVERIFY(Propertyless().serializable());
}

QTEST_MAIN(tst_SerializableImpl)
#include "tst_SerializableImpl.moc"
