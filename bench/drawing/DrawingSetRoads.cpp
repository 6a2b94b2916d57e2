#include "drawing/DrawingSetRecords.h"
#include "drawing/ORVCADDisposeInfoData.h"
#include "suite/Families.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <memory>

// The drawing set, whole and one kind of records alone, against the same document by hand. An item is a record: a
// sub-drawing, a row of a table, a floor, a drawing of a floor, the types of a drawing, a layer, a scale, a location; so a
// drawing has 29 of them, and there is a floor for ten drawings.

namespace {

using bench::Drawings;
using bench::Load;
using bench::Sides;
using Family = bench::DrawingSetFamily;
using FamilyList = std::vector<Family>;

// Bounds.
constexpr double kWritten = 1.25;
constexpr double kRead = 1.25;
constexpr double kGrowth = 1.8;
constexpr double kWrittenMemory = 4.0;
constexpr double kReadMemory = 6.0;

constexpr std::size_t kDrawingsOfAFloor = 10;

const std::vector<std::size_t> kFamilySizes{2'000, 200'000};
const std::vector<std::size_t> kHeavySizes{2'000, 20'000}; // records with many values each

/** The drawing set of the process, with some of its stages, and the texts that it was filled with. */
class FilledSet
{
public:
    FilledSet(FamilyList families, std::size_t drawings, std::size_t floors)
        : m_families(std::move(families)), m_drawings(drawings, floors)
    {
        for (const Family &family : m_families)
            family.fill(m_drawings, *ORVCADDisposeInfoData::getData());
    }
    ~FilledSet() { ORVCADDisposeInfoData::freeData(); }
    Q_DISABLE_COPY(FilledSet)

    double records() const
    {
        std::size_t records = 0;
        for (const Family &family : m_families)
            records += family.records(m_drawings);
        return static_cast<double>(records);
    }
    QByteArray write() const
    {
        const QJsonObject whole = ORVCADDisposeInfoData::getData()->toJson();
        QJsonObject document;
        for (const Family &family : m_families)
            document.insert(QLatin1String(family.key), whole.value(QLatin1String(family.key)));
        return QJsonDocument(document).toJson();
    }
    QByteArray writeByHand() const { return QJsonDocument(documentByHand()).toJson(); }
    QByteArray readableBytes() const { return QJsonDocument(bench::readable(documentByHand())).toJson(); }

private:
    QJsonObject documentByHand() const
    {
        QJsonObject document;
        for (const Family &family : m_families)
            document.insert(QLatin1String(family.key), family.byHand(m_drawings));
        return document;
    }

    FamilyList m_families;
    Drawings m_drawings;
};

/** As many drawings, or floors where drawings do not count, as give so many records. */
std::shared_ptr<const FilledSet> filled(const FamilyList &families, std::size_t records)
{
    std::size_t ofDrawing = 0;
    for (const Family &family : families)
        ofDrawing += family.ofDrawing;
    const std::size_t drawings = ofDrawing > 0 ? records / ofDrawing : 0;
    const std::size_t floors = ofDrawing > 0 ? std::max<std::size_t>(drawings / kDrawingsOfAFloor, 1) : records;
    return std::make_shared<const FilledSet>(families, drawings, floors);
}

auto writing(const FamilyList &families)
{
    return [families](const Load &load) {
        const auto set = filled(families, load.size);
        Sides sides{[set] { bench::keep(set->write()); }, [set] { bench::keep(set->writeByHand()); }, set->records(),
                    static_cast<double>(set->write().size())};
        // The two may differ in the order of parents and types, and in nothing else.
        sides.wrong = [set] {
            return set->write().size() == set->writeByHand().size() ? QString()
                                                                    : QStringLiteral("the documents differ");
        };
        return sides;
    };
}

/** A look at every value, which no reader can avoid. */
double walk(const QJsonValue &value)
{
    double sum = value.toDouble();
    if (value.isString())
        sum += value.toString().size();
    const QJsonArray array = value.toArray();
    for (const QJsonValue entry : array)
        sum += walk(entry);
    const QJsonObject object = value.toObject();
    for (const QJsonValue member : object)
        sum += walk(member);
    return sum;
}

auto reading(const FamilyList &families)
{
    return [families](const Load &load) {
        const auto set = filled(families, load.size);
        const QByteArray bytes = set->readableBytes();
        const auto read = [families, bytes] {
            const QJsonObject document = QJsonDocument::fromJson(bytes).object();
            for (const Family &family : families)
                family.read(document.value(QLatin1String(family.key)));
        };
        return Sides{read, [bytes] { bench::keep(walk(QJsonDocument::fromJson(bytes).object())); }, set->records(),
                     static_cast<double>(bytes.size())};
    };
}

void addRoads(bench::Roads &roads, const std::string &name, const std::vector<std::size_t> &sizes,
              const FamilyList &families)
{
    FamilyList withReader;
    std::copy_if(families.begin(), families.end(), std::back_inserter(withReader),
                 [](const Family &family) { return family.read; });
    roads.push_back({name + " written",
                     "QJsonObjects by hand, toJson",
                     sizes,
                     {kWritten, kGrowth, kWrittenMemory},
                     writing(families)});
    if (!withReader.empty())
        roads.push_back(
            {name + " read", "QJsonDocument and a walk", sizes, {kRead, kGrowth, kReadMemory}, reading(withReader)});
}

bool isHeavy(const Family &family) { return family.ofDrawing > 1; }

} // namespace

bench::Roads bench::drawingSetRoads()
{
    Roads roads;
    addRoads(roads, "drawing set", kSizes, drawingSetFamilies());
    for (const Family &family : drawingSetFamilies()) {
        const std::string name = std::string("drawing set: ") + family.name;
        if (isHeavy(family))
            addRoads(roads, name, kHeavySizes, {family});
        else
            addRoads(roads, name, kFamilySizes, {family});
    }
    return roads;
}
