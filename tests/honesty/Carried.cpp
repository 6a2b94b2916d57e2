#include "Carried.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace honestytest {

namespace {

/** Numbers of geometry texts, and the words between them. */
struct Geometry
{
    std::vector<double> numbers;
    QString words;
};

Geometry geometryOf(QString text)
{
    static const QRegularExpression number(QStringLiteral("[-+]?(\\d+\\.?\\d*|\\.\\d+)([eE][-+]?\\d+)?"));
    Geometry geometry;
    auto matches = number.globalMatch(text);
    while (matches.hasNext())
        geometry.numbers.push_back(matches.next().captured().toDouble());
    geometry.words = text.replace(number, QStringLiteral("0")).remove(u' ');
    return geometry;
}

bool isNear(double a, double b)
{
    constexpr double sixDigits = 1e-5;
    return a == b || std::fabs(a - b) <= sixDigits * std::max(std::fabs(a), std::fabs(b));
}

bool isSameGeometry(const QString &a, const QString &b)
{
    const Geometry one = geometryOf(a);
    const Geometry other = geometryOf(b);
    return one.words == other.words &&
           std::equal(one.numbers.begin(), one.numbers.end(), other.numbers.begin(), other.numbers.end(), isNear);
}

bool isSame(const QJsonValue &sent, const QJsonValue &arrived, How how)
{
    switch (how) {
    case How::Same:
        return sent == arrived;
    case How::Rounded:
        return sent.isDouble() && arrived.isDouble() && isNear(sent.toDouble(), arrived.toDouble());
    case How::Geometry:
        return sent.isString() && arrived.isString() && isSameGeometry(sent.toString(), arrived.toString());
    case How::Host:
        return sent == arrived || (sent.isString() && sent.toString().isEmpty());
    case How::Never:
        return true;
    }
    return false;
}

QString shown(const QJsonValue &value)
{
    return value.isUndefined() ? QStringLiteral("nothing")
                               : QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact));
}

/** Partners by augmenting paths. */
class Matching
{
public:
    explicit Matching(std::vector<std::vector<bool>> fits)
        : m_fits(std::move(fits)), m_owner(m_fits.empty() ? 0 : m_fits[0].size(), -1)
    {}

    /** Whether a partner is found for one more. */
    bool add(std::size_t sent)
    {
        std::vector<bool> tried(m_owner.size());
        return place(sent, tried);
    }

private:
    bool place(std::size_t sent, std::vector<bool> &tried)
    {
        for (std::size_t i = 0; i < m_owner.size(); ++i) {
            if (!m_fits[sent][i] || tried[i])
                continue;
            tried[i] = true;
            if (m_owner[i] < 0 || place(static_cast<std::size_t>(m_owner[i]), tried)) {
                m_owner[i] = static_cast<int>(sent);
                return true;
            }
        }
        return false;
    }

    std::vector<std::vector<bool>> m_fits;
    std::vector<int> m_owner;
};

} // namespace

QString whyNotTheSame(const QJsonObject &sent, const QJsonObject &arrived, const CarriedKeys &keys)
{
    for (const QString &key : sent.keys())
        if (std::none_of(keys.begin(), keys.end(), [&](const CarriedKey &known) { return known.key == key; }))
            return key + QStringLiteral(": is no key of the format");
    for (const CarriedKey &row : keys) {
        if (row.how == How::Never || (row.counts && !row.counts(sent)))
            continue;
        const QJsonValue value = sent.contains(row.key) ? sent[row.key] : row.missing;
        if (!value.isUndefined() && !isSame(value, arrived[row.key], row.how))
            return QStringLiteral("%1: %2 was sent, %3 arrived").arg(row.key, shown(value), shown(arrived[row.key]));
    }
    return {};
}

std::string withoutPartner(const Members &sent, const Members &arrived, const Compare &difference)
{
    std::vector<std::vector<bool>> fits(sent.size());
    std::vector<QString> reasons;
    for (std::size_t i = 0; i < sent.size(); ++i) {
        QString reason = QStringLiteral("nothing of its kind arrived");
        bool isFirst = true;
        for (const Member &candidate : arrived) {
            const QString why = candidate.kind == sent[i].kind ? difference(sent[i], candidate) : QStringLiteral("kind");
            fits[i].push_back(why.isEmpty());
            if (candidate.kind == sent[i].kind && (isFirst || candidate.place == sent[i].place))
                reason = why;
            isFirst = isFirst && candidate.kind != sent[i].kind;
        }
        reasons.push_back(reason);
    }
    Matching matching(fits);
    std::string lines;
    for (std::size_t i = 0; i < sent.size(); ++i)
        if (!matching.add(i))
            lines += sent[i].place.toStdString() + ": " +
                     (reasons[i].isEmpty() ? "is another member's already" : reasons[i].toStdString()) + '\n';
    return lines;
}

int countOf(const Members &members, const QString &kind)
{
    return static_cast<int>(
        std::count_if(members.begin(), members.end(), [&](const Member &member) { return member.kind == kind; }));
}

} // namespace honestytest
