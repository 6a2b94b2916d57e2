#include "Mutations.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <numeric>

namespace honestytest {

namespace {

constexpr char kDrop[] = "dropped";
constexpr char kMisspell[] = "misspelt";
constexpr char kOtherCase[] = "in another case";
constexpr char kDouble[] = "twice";

QJsonValue same(const QJsonValue &value) { return value; }

QString otherCase(const QString &key) { return key.toUpper() == key ? key.toLower() : key.toUpper(); }

} // namespace

const Mutations::Change Mutations::kMember[] = {
    {kDrop, same},
    {kMisspell, same},
    {kOtherCase, same},
    {"null", [](const QJsonValue &) { return QJsonValue(QJsonValue::Null); }},
    {"an empty object", [](const QJsonValue &) { return QJsonValue(QJsonObject()); }},
    {"an array", [](const QJsonValue &value) { return QJsonValue(QJsonArray{value}); }},
};

const Mutations::Change Mutations::kText[] = {
    {"a number", [](const QJsonValue &) { return QJsonValue(5); }},
    {"true", [](const QJsonValue &) { return QJsonValue(true); }},
    {"empty", [](const QJsonValue &) { return QJsonValue(QString()); }},
    {"nan", [](const QJsonValue &) { return QJsonValue("nan"); }},
    {"infinite", [](const QJsonValue &) { return QJsonValue("1e999"); }},
    {"in hexadecimal", [](const QJsonValue &) { return QJsonValue("0x10"); }},
    {"unknown", [](const QJsonValue &) { return QJsonValue("nowhere"); }},
    {"with a blank in front", [](const QJsonValue &value) { return QJsonValue(' ' + value.toString()); }},
    {"with something behind", [](const QJsonValue &value) { return QJsonValue(value.toString() + "1"); }},
    {"with a separator", [](const QJsonValue &value) { return QJsonValue(value.toString() + "/7:8;9"); }},
    {"with a line break", [](const QJsonValue &value) { return QJsonValue(value.toString() + "\n\t\"&<"); }},
    {"with a fraction", [](const QJsonValue &value) { return QJsonValue(value.toString() + ".25"); }},
    {"crossing itself", [](const QJsonValue &) { return QJsonValue("POLYGON((0 0, 900 900, 900 0, 0 900, 0 0))"); }},
    {"open", [](const QJsonValue &) { return QJsonValue("POLYGON((0 0, 900 0, 900 900, 0 900))"); }},
    {"a line of no length", [](const QJsonValue &) { return QJsonValue("LINESTRING(5 5, 5 5)"); }},
    {"far away", [](const QJsonValue &) { return QJsonValue("LINESTRING(1e9 0, 1000000000.125 5000)"); }},
};

const Mutations::Change Mutations::kNumber[] = {
    {"as text", [](const QJsonValue &value) { return QJsonValue(QString::number(value.toDouble())); }},
    {"true", [](const QJsonValue &) { return QJsonValue(true); }},
    {"zero", [](const QJsonValue &) { return QJsonValue(0); }},
    {"below zero", [](const QJsonValue &value) { return QJsonValue(-1 - value.toDouble()); }},
    {"with a fraction", [](const QJsonValue &value) { return QJsonValue(value.toDouble() + 0.37); }},
    {"with many digits", [](const QJsonValue &value) { return QJsonValue(value.toDouble() + 1.0 / 3.0); }},
    {"beyond 32 bits", [](const QJsonValue &) { return QJsonValue(4294967297.0); }},
    {"seven digits", [](const QJsonValue &) { return QJsonValue(1234567); }},
    {"huge", [](const QJsonValue &) { return QJsonValue(1e300); }},
    {"tiny", [](const QJsonValue &) { return QJsonValue(1e-300); }},
};

const Mutations::Change Mutations::kTruth[] = {
    {"as a number", [](const QJsonValue &value) { return QJsonValue(value.toBool() ? 1 : 0); }},
    {"as text", [](const QJsonValue &value) { return QJsonValue(value.toBool() ? "true" : "false"); }},
    {"turned", [](const QJsonValue &value) { return QJsonValue(!value.toBool()); }},
};

const Mutations::Change Mutations::kContainer[] = {
    {"a number", [](const QJsonValue &) { return QJsonValue(5); }},
    {"a text", [](const QJsonValue &) { return QJsonValue("five"); }},
};

const Mutations::Change Mutations::kEntry[] = {
    {kDrop, same},
    {kDouble, same},
    {"a number", [](const QJsonValue &) { return QJsonValue(5); }},
    {"null", [](const QJsonValue &) { return QJsonValue(QJsonValue::Null); }},
};

Mutations::Mutations(QJsonValue document) : m_document(std::move(document))
{
    Path path;
    plan(m_document, path);
}

Mutation Mutations::at(std::size_t number) const
{
    const Planned &planned = m_all.at(number);
    const QString what = planned.change ? QString::fromLatin1(planned.change->what)
                                        : QStringLiteral("%1 swapped with the next one's").arg(planned.swappedKey);
    return {placeOf(planned.path) + QStringLiteral(": ") + what, changed(m_document, planned.path, 0, planned)};
}

std::vector<Mutation> Mutations::sample(std::size_t most, unsigned seed) const
{
    std::vector<std::size_t> numbers(m_all.size());
    std::iota(numbers.begin(), numbers.end(), 0);
    std::mt19937 random(seed);
    for (std::size_t i = 0; i < std::min(most, numbers.size()); ++i) // the same picks with every library
        std::swap(numbers[i], numbers[i + random() % (numbers.size() - i)]);
    numbers.resize(std::min(most, numbers.size()));
    std::sort(numbers.begin(), numbers.end());
    std::vector<Mutation> picked;
    picked.reserve(numbers.size());
    for (const std::size_t number : numbers)
        picked.push_back(at(number));
    return picked;
}

void Mutations::plan(const QJsonValue &value, Path &path)
{
    const QJsonObject object = value.toObject();
    for (const QString &key : object.keys()) {
        path.push_back({key, -1});
        planMember(object[key], path);
        path.pop_back();
    }
    const QJsonArray array = value.toArray();
    for (int i = 0; i < array.size(); ++i) {
        path.push_back({QString(), i});
        planEntry(array, i, path);
        path.pop_back();
    }
}

void Mutations::planMember(const QJsonValue &value, Path &path)
{
    add(kMember, path);
    if (value.isString())
        add(kText, path);
    else if (value.isDouble())
        add(kNumber, path);
    else if (value.isBool())
        add(kTruth, path);
    else
        add(kContainer, path);
    plan(value, path);
}

void Mutations::planEntry(const QJsonArray &array, int index, Path &path)
{
    add(kEntry, path);
    const QJsonObject next = array.at(index + 1).toObject();
    for (const QString &key : array.at(index).toObject().keys())
        if (next.contains(key) && next[key] != array.at(index).toObject()[key])
            m_all.push_back({path, nullptr, key});
    plan(array.at(index), path);
}

template <std::size_t Count> void Mutations::add(const Change (&changes)[Count], const Path &path)
{
    for (const Change &change : changes)
        m_all.push_back({path, &change, {}});
}

QString Mutations::placeOf(const Path &path)
{
    QString place;
    for (const Step &step : path)
        place += step.key.isEmpty() ? QStringLiteral("[%1]").arg(step.index) : '.' + step.key;
    return place.mid(place.startsWith('.') ? 1 : 0);
}

QJsonValue Mutations::changed(const QJsonValue &value, const Path &path, std::size_t depth, const Planned &planned)
{
    const Step &step = path[depth];
    if (depth + 1 == path.size())
        return changedHere(value, step, planned);
    if (step.key.isEmpty()) {
        QJsonArray array = value.toArray();
        array[step.index] = changed(array.at(step.index), path, depth + 1, planned);
        return array;
    }
    QJsonObject object = value.toObject();
    object[step.key] = changed(object[step.key], path, depth + 1, planned);
    return object;
}

QJsonValue Mutations::changedHere(const QJsonValue &holder, const Step &step, const Planned &planned)
{
    const QByteArray what = planned.change ? planned.change->what : "";
    if (!step.key.isEmpty()) {
        QJsonObject object = holder.toObject();
        const QJsonValue value = object.take(step.key);
        if (what == kMisspell)
            object[step.key + "s"] = value;
        else if (what == kOtherCase)
            object[otherCase(step.key)] = value;
        else if (what != kDrop)
            object[step.key] = planned.change->change(value);
        return object;
    }
    QJsonArray array = holder.toArray();
    if (what == kDrop) {
        array.removeAt(step.index);
    } else if (what == kDouble) {
        array.insert(step.index, array.at(step.index));
    } else if (planned.change) {
        array[step.index] = planned.change->change(array.at(step.index));
    } else {
        QJsonObject here = array.at(step.index).toObject();
        QJsonObject next = array.at(step.index + 1).toObject();
        const QJsonValue value = here[planned.swappedKey];
        here[planned.swappedKey] = next[planned.swappedKey];
        next[planned.swappedKey] = value;
        array[step.index] = here;
        array[step.index + 1] = next;
    }
    return array;
}

} // namespace honestytest
