// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordsFixture.h"
#include "fakes/PredicateFormat.h"

#include <QDateTime>

#include <random>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

/// Values that have gone wrong somewhere once, and mixtures of them. The seed is fixed: a failure
/// comes again.
class Generated
{
public:
    explicit Generated(unsigned seed)
        : m_random(seed)
    {
    }

    int below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(m_random); }

    QString text()
    {
        static const QStringList pieces{QString(), QString(QChar(u'\0')), u"'"_s, u"\""_s, u"%"_s,
            u"_"_s, u"\\"_s, u"é"_s, u"e\u0301"_s, u"E"_s, u"e"_s, u"ß"_s, u"ss"_s, u"İ"_s, u"i"_s,
            u"\U0001F600"_s, u"\U0001F601"_s, QString(QChar(0xD83D)), QString(QChar(0xDE00)),
            u"\uFFFD"_s, u"\u0345"_s, u"Σ"_s, u"ς"_s, u" "_s};
        QString made;
        for (int count = below(4); count > 0; --count) {
            made += pieces[below(static_cast<int>(pieces.size()))];
        }
        return made;
    }
    QVariant valueFor(AttributeType type)
    {
        if (below(5) == 0) {
            return {};
        }
        switch (type) {
        case AttributeType::Integer16:
            return below(3) == 0 ? std::numeric_limits<qint16>::min() + below(2) : below(3);
        case AttributeType::Boolean:
            return below(2) == 0;
        case AttributeType::String:
            return text();
        case AttributeType::Date:
            return QDateTime::fromMSecsSinceEpoch(below(3) - 1, Qt::UTC);
        }
        return {};
    }
    QVariant anyValue() { return valueFor(static_cast<AttributeType>(below(4))); }
    Predicate predicate(const Entity &entity, int depth)
    {
        const auto &attribute = entity.attributes()[below(int(entity.attributes().size()))];
        switch (below(depth > 0 ? 5 : 3)) {
        case 0:
            return Predicate::equal(
                attribute.name, below(4) == 0 ? anyValue() : valueFor(attribute.type));
        case 1:
            return Predicate::contains(attribute.name, text());
        case 2:
            return Predicate::beginsWith(attribute.name, text());
        case 3:
            return Predicate::all(parts(entity, depth));
        default:
            return Predicate::any(parts(entity, depth));
        }
    }

private:
    QList<Predicate> parts(const Entity &entity, int depth)
    {
        QList<Predicate> made;
        for (int count = below(4); count > 0; --count) {
            made << predicate(entity, depth - 1);
        }
        return made;
    }

    std::mt19937 m_random;
};

/// As conditions compare it: Booleans as numbers, texts as a file can hold them.
QVariant comparable(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return wellFormedText(value.toString());
    case QMetaType::Bool:
    case QMetaType::Int:
        return value.toLongLong();
    default:
        return value;
    }
}

/// What a condition means, said a second time without a database.
bool holds(const Predicate &predicate, const ManagedObject &record)
{
    const auto part = [&record](const Predicate &each) { return holds(each, record); };
    if (predicate.kind() == Predicate::Kind::And) {
        return std::ranges::all_of(predicate.parts(), part);
    }
    if (predicate.kind() == Predicate::Kind::Or) {
        return std::ranges::any_of(predicate.parts(), part);
    }
    const QVariant present = comparable(record.value(predicate.attribute()));
    const QVariant wanted = comparable(predicate.value());
    if (!present.isValid() || present.typeId() != wanted.typeId()) {
        return false;
    }
    if (predicate.kind() == Predicate::Kind::Equal) {
        return present == wanted;
    }
    return predicate.kind() == Predicate::Kind::Contains
               ? present.toString().contains(wanted.toString())
               : foldedText(present.toString()).startsWith(foldedText(wanted.toString()));
}

} // namespace

class PredicateAgreement : public RecordsTest
{
protected:
    void fillWith(Generated &generated)
    {
        for (const QString &name : {model::Rule, model::Connection}) {
            for (int count = 0; count < 60; ++count) {
                const auto object = context().insertNewObject(name);
                for (const Attribute &attribute : object->entity().attributes()) {
                    object->setValue(attribute.name, generated.valueFor(attribute.type));
                }
            }
        }
    }
    static QStringList identities(const ManagedObjectList &objects)
    {
        QStringList all;
        for (const auto &object : objects) {
            all << object->uriRepresentation();
        }
        return all;
    }
    /// In no certain order.
    QStringList expected(const FetchRequest &request)
    {
        ManagedObjectList objects = context().fetch({request.entity, {}, {}}).value();
        objects.removeIf([&request](const ManagedObjectPtr &object) {
            return !holds(*request.predicate, *object);
        });
        QStringList all = identities(objects);
        all.sort();
        return all;
    }
    static QStringList found(ManagedObjectContext &where, const FetchRequest &request)
    {
        const auto objects = where.fetch(request);
        return objects ? identities(objects.value()) : QStringList(objects.error().message);
    }
};

TEST_F(PredicateAgreement, RecordsAreFoundByWhatTheConditionMeansBeforeAndAfterSaving)
{
    Generated generated(20250615);
    fillWith(generated);
    // Here nothing is in the file; another program sees its rows only.
    QList<std::pair<FetchRequest, QStringList>> unsaved;
    int matches = 0;
    for (int count = 0; count < 1500; ++count) {
        const Entity &entity = quillonModel().entities[generated.below(2)];
        QList<SortDescriptor> order;
        for (int by = generated.below(3); by > 0; --by) {
            const auto &attribute = entity.attributes()[generated.below(7)];
            order << SortDescriptor{attribute.name, generated.below(2) == 0};
        }
        const FetchRequest request{entity.name(), generated.predicate(entity, 3), order};
        unsaved.append({request, found(context(), request)});
        QStringList sorted = unsaved.last().second;
        sorted.sort();
        ASSERT_EQ(sorted, expected(request)) << format(*request.predicate).toStdString();
        matches += static_cast<int>(sorted.size());
    }
    save();
    const auto other = another();
    for (const auto &[request, before] : unsaved) {
        ASSERT_EQ(found(other->context(), request), before)
            << format(*request.predicate).toStdString();
    }
    EXPECT_GT(matches, 5000) << "the predicates select too little to tell anything";
}

TEST_F(PredicateAgreement, ChangesOverTheFileGiveTheSameAnswerAsTheFileAfterSaving)
{
    Generated generated(4711);
    fillWith(generated);
    save();
    for (int round = 0; round < 20; ++round) {
        for (const QString &name : {model::Rule, model::Connection}) {
            for (const auto &object : context().fetch({name, {}, {}}).value()) {
                if (generated.below(4) == 0) {
                    const auto &attributes = object->entity().attributes();
                    const auto &attribute = attributes[generated.below(int(attributes.size()))];
                    object->setValue(attribute.name, generated.valueFor(attribute.type));
                } else if (generated.below(12) == 0) {
                    context().deleteObject(object);
                    context().insertNewObject(name)->setValue(
                        model::connection::ssid, generated.text());
                }
            }
        }
        QList<std::pair<FetchRequest, QStringList>> before;
        for (int count = 0; count < 40; ++count) {
            const Entity &entity = quillonModel().entities[generated.below(2)];
            const auto &attribute = entity.attributes()[generated.below(7)];
            const FetchRequest request{entity.name(), generated.predicate(entity, 2),
                {{attribute.name, generated.below(2) == 0}}};
            before.append({request, found(context(), request)});
        }
        save();
        const auto other = another();
        for (const auto &[request, expected] : before) {
            ASSERT_EQ(found(other->context(), request), expected)
                << format(*request.predicate).toStdString();
        }
    }
}

} // namespace quillon::test
