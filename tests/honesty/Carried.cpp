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

constexpr double kSixDigits = 1e-5; // of a number, relative
constexpr double kElevation = 1e-6; // m: six digits behind the point

bool isWithin(double share, double a, double b)
{
    return a == b || std::fabs(a - b) <= share * std::max(std::fabs(a), std::fabs(b));
}

bool isNear(double a, double b)
{
    constexpr double kNothing = 1e-6; // mm
    return isWithin(kSixDigits, a, b) || std::fabs(a - b) <= kNothing;
}

bool areNear(const std::vector<double> &a, const std::vector<double> &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), isNear);
}

bool isRing(const Geometry &geometry)
{
    return geometry.words.startsWith("POLYGON((0") && geometry.words.count('(') == 2;
}

bool isCurve(const Geometry &geometry)
{
    return geometry.words.startsWith("LINESTRING") || geometry.words.startsWith("CIRCULARSTRING");
}

/** The points of a curve from its end to its start. */
std::vector<double> turned(const std::vector<double> &points)
{
    std::vector<double> back;
    for (std::size_t i = points.size(); i > 1; i -= 2)
        back.insert(back.end(), {points[i - 2], points[i - 1]});
    return back;
}

/** Whether a ring of straight edges is another one, begun at another corner. */
bool isSameRing(std::vector<double> a, const std::vector<double> &b)
{
    if (a.size() < 4 || a.size() != b.size())
        return false;
    for (std::size_t start = 2; start < a.size(); start += 2) {
        a.erase(a.begin(), a.begin() + 2);
        a.insert(a.end(), {a[0], a[1]}); // ends where it begins
        if (areNear(a, b))
            return true;
    }
    return false;
}

bool isSame(const QJsonValue &sent, const QJsonValue &arrived, How how)
{
    switch (how) {
    case How::Same:
        return sent == arrived;
    case How::Near:
        return sent.isDouble() && arrived.isDouble() && std::fabs(sent.toDouble() - arrived.toDouble()) <= kElevation;
    case How::Rounded:
        return sent.isDouble() && arrived.isDouble() && isWithin(kSixDigits, sent.toDouble(), arrived.toDouble());
    case How::Geometry:
        return sent.isString() && arrived.isString() && isSameGeometry(sent.toString(), arrived.toString());
    case How::Bars:
        return sent.isString() && arrived.isString() && sent.toString().toUpper() == arrived.toString().toUpper();
    case How::Host: // blanks around an elevation are none of its own
        return sent == arrived || (sent.isString() && sent.toString().isEmpty()) ||
               (sent.isString() && arrived.isString() && sent.toString().trimmed() == arrived.toString());
    case How::Direction: // told of the whole record, see isAlong()
    case How::Never:
        return true;
    }
    return false;
}

/** Whether two bars of an area run along one another, in either direction. */
bool isAlong(const QJsonObject &sent, const QJsonObject &arrived)
{
    constexpr double kSine = 1e-6;
    const auto part = [](const QJsonObject &bar, const char *key) { return bar[QLatin1String(key)].toDouble(); };
    const double x = part(sent, "direction_x");
    const double y = part(sent, "direction_y");
    const double across = x * part(arrived, "direction_y") - y * part(arrived, "direction_x");
    return std::fabs(across) <= kSine * std::hypot(x, y);
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

bool isSameGeometry(const QString &a, const QString &b)
{
    const Geometry one = geometryOf(a);
    const Geometry other = geometryOf(b);
    return one.words == other.words &&
           (areNear(one.numbers, other.numbers) || (isRing(one) && isSameRing(one.numbers, other.numbers)) ||
            (isCurve(one) && areNear(turned(one.numbers), other.numbers)));
}

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
    return isAlong(sent, arrived) ? QString() : QStringLiteral("it runs in another direction");
}

std::string withoutPartner(const Members &sent, const Members &arrived, const Compare &difference)
{
    std::vector<std::vector<bool>> fits(sent.size());
    std::vector<QString> reasons;
    for (std::size_t i = 0; i < sent.size(); ++i) {
        QString reason = QStringLiteral("nothing of its kind arrived");
        bool isFirst = true;
        for (const Member &candidate : arrived) {
            const QString why =
                candidate.kind == sent[i].kind ? difference(sent[i], candidate) : QStringLiteral("kind");
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
