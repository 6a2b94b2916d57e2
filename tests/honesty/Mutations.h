#pragma once

#include <QJsonValue>
#include <QString>

#include <random>
#include <vector>

namespace honestytest {

/** A document with one thing about it changed. */
struct Mutation
{
    QString what; ///< "boards[3].elev: as text"
    QJsonValue document;
};

/** All of them, in the order of the document, made one by one: each member dropped, misspelt, of another type, out of
 *  range or unknown; each entry of an array dropped, twice, or something else; values of a key swapped between two
 *  entries of an array. */
class Mutations
{
public:
    explicit Mutations(QJsonValue document);

    std::size_t count() const { return m_all.size(); }
    Mutation at(std::size_t number) const;
    /** So many of them, picked by a seed, in the order of the document; all of them where there are no more. */
    std::vector<Mutation> sample(std::size_t most, unsigned seed) const;

private:
    struct Step
    {
        QString key; ///< empty for an entry of an array
        int index = -1;
    };
    using Path = std::vector<Step>;
    struct Change
    {
        const char *what;
        QJsonValue (*change)(const QJsonValue &);
    };
    struct Planned
    {
        Path path;
        const Change *change = nullptr;
        QString swappedKey; ///< of a swap between the entry at path and the next one
    };

    void plan(const QJsonValue &value, Path &path);
    void planMember(const QJsonValue &value, Path &path);
    void planEntry(const QJsonArray &array, int index, Path &path);
    template <std::size_t Count> void add(const Change (&changes)[Count], const Path &path);
    static QString placeOf(const Path &path);
    static QJsonValue changed(const QJsonValue &value, const Path &path, std::size_t depth, const Planned &planned);
    static QJsonValue changedHere(const QJsonValue &holder, const Step &step, const Planned &planned);

    static const Change kMember[];
    static const Change kText[];
    static const Change kNumber[];
    static const Change kTruth[];
    static const Change kContainer[];
    static const Change kEntry[];

    QJsonValue m_document;
    std::vector<Planned> m_all;
};

} // namespace honestytest
