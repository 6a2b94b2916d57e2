#pragma once

#include "ReplyRoads.h"

#include <QStringList>

namespace honestytest {

// What the tables of carried keys are made of.

/** For a key that is missing: whatever the host has then. */
const QJsonValue kHosts = QJsonValue::Undefined;

inline CarriedKey text(const char *key) { return {key, How::Same, QString()}; }
inline CarriedKey number(const char *key) { return {key, How::Same, 0}; }
inline CarriedKey near(const char *key) { return {key, How::Near, 0}; }
inline CarriedKey sixDigits(const char *key) { return {key, How::Rounded, 0}; }
/** Part of a vector whose length does not count. */
inline CarriedKey direction(const char *key) { return {key, How::Direction, kHosts}; }
inline CarriedKey geometry(const char *key) { return {key, How::Geometry, QString()}; }
/** An empty text leaves the host's value as it is. */
inline CarriedKey hostText(const char *key) { return {key, How::Host, kHosts}; }
inline CarriedKey never(const char *key) { return {key, How::Never, kHosts}; }
CarriedKey when(CarriedKey row, std::function<bool(const QJsonObject &)> counts);
CarriedKeys operator+(CarriedKeys keys, const CarriedKeys &more);

/** Entries of the arrays of those keys, by their places. */
Members entries(const QJsonObject &document, const QString &key);
Members entriesOf(const QJsonObject &document, const QStringList &keys);

/** The first record of a list that did not arrive at its place. */
QString recordsDifference(const QJsonValue &sent, const QJsonValue &arrived, const QString &key,
                          const CarriedKeys &keys);

/** Tells numbers that differ. */
class Sums
{
public:
    void expect(const QString &what, int summary, int counted);
    std::string text() const { return m_text.toStdString(); }

private:
    QString m_text;
};

/** Entries of "leftOut" that stand for a whole member, of an array or of all. */
int wholeLeftOut(const QJsonObject &summary, const QString &array = QString());
int placedOf(const QJsonObject &summary);

/** The document with a value changed; steps are keys and the numbers of entries. */
QJsonValue withValue(const QJsonValue &holder, QStringList steps, const QJsonValue &value);
inline QJsonObject asItIs(QJsonObject document) { return document; }

std::vector<ReplyRoad> openingRoads();
std::vector<ReplyRoad> slabRoads();
std::vector<ReplyRoad> beamRoads();
std::vector<ReplyRoad> seatRoads();
std::vector<ReplyRoad> wallRoads();

} // namespace honestytest
