#include "ModelSerialization/ORVCADBoardLocalModelPersistenceService_Sample.h"
#include "ModelSerialization/SlabFloor.h"
#include "ModelSerialization/SlabRecords.h"
#include "support/RatioBench.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cstdlib>
#include <memory>

// Slab models to text and back, against the same documents by hand.

namespace {

using Model = ORVCADBoardLocalModel_Sample;
using Service = ORVCADBoardLocalModelPersistenceService_Sample;

constexpr int kSizes[] = {200, 2000, 20000}; // slabs, each with some five bars and two beams

// Ceilings of the ratios.
constexpr double kWritten = 1.25;
constexpr double kRead = 1.25;
constexpr double kReadWithoutElements = 1.25;
constexpr double kGrowth = 1.3;

/** A floor with bars and ids, as it goes out. */
std::unique_ptr<Model> floorOf(int slabs)
{
    auto model = std::make_unique<Model>();
    bench::addSlabFloor(*model, slabs);
    bench::addSlabBars(*model, *model);
    return model;
}

QByteArray textOf(const QJsonObject &json) { return QJsonDocument(json).toJson(QJsonDocument::Compact); }
QJsonObject jsonOf(const QByteArray &text) { return QJsonDocument::fromJson(text).object(); }

/** Both roads of both sides over so many slabs in documents of so many each. */
struct Roads
{
    Roads(int slabs, int documentSize)
        : count(static_cast<std::size_t>(slabs / documentSize)), floor(floorOf(documentSize)), records(*floor),
          text(textOf(Service::model2json(floor.get(), Service::Everything)))
    {}
    std::size_t elements() const { return count * floor->objects().size(); }

    void write() const
    {
        for (std::size_t i = 0; i < count; ++i)
            bench::keep(textOf(Service::model2json(floor.get(), Service::Everything)));
    }
    void writeByHand() const
    {
        for (std::size_t i = 0; i < count; ++i)
            bench::keep(textOf(records.toJson()));
    }
    bench::Work read()
    {
        return {[this] { clear(); },
                [this] {
                    for (std::size_t i = 0; i < count; ++i) {
                        models.push_back(std::make_unique<Model>());
                        Service::json2model(jsonOf(text), models.back().get(), Service::Everything);
                    }
                }};
    }
    bench::Work readByHand()
    {
        return {[this] { clear(); },
                [this] {
                    for (std::size_t i = 0; i < count; ++i)
                        copies.emplace_back().fromJson(jsonOf(text));
                }};
    }

    /** What cannot be left out: the text walked, and a model of elements with their geometry. */
    bench::Work readIntoElements()
    {
        return {[this] { clear(); },
                [this] {
                    for (std::size_t i = 0; i < count; ++i) {
                        copies.emplace_back().fromJson(jsonOf(text));
                        models.push_back(std::make_unique<Model>());
                        copies.back().addTo(*models.back());
                    }
                }};
    }
    void clear()
    {
        models.clear();
        copies.clear();
    }

    std::size_t count;
    std::unique_ptr<Model> floor;
    SlabRecords records;
    QByteArray text;
    std::vector<std::unique_ptr<Model>> models;
    std::vector<SlabRecords> copies;
};

/** That both sides do the same. */
void check(const Model &floor)
{
    const QJsonObject json = Service::model2json(&floor, Service::Everything);
    const QJsonObject byHand = SlabRecords(floor).toJson();
    for (auto array = byHand.begin(); array != byHand.end(); ++array)
        if (array.value().toArray().isEmpty() || json.value(array.key()) != array.value())
            std::abort();
}

} // namespace

int main()
{
    check(*floorOf(kSizes[0]));
    bench::RatioTable table("Slab text", bench::Time::Cpu);
    for (const int size : kSizes) {
        Roads roads(size, size);
        const std::size_t elements = roads.elements();
        table.row(
            "written / by hand with texts ready", elements, [&] { roads.write(); }, [&] { roads.writeByHand(); },
            kWritten);
        table.row("read / by hand, with bare elements", elements, roads.read(), roads.readIntoElements(), kRead);
        table.row("read / walked without elements and geometry", elements, roads.read(), roads.readByHand(),
                  kReadWithoutElements);
    }
    // Both sides handle the same number of slabs, so that this tells of the document's size alone.
    for (const int size : {kSizes[1], kSizes[2]}) {
        Roads large(size, size);
        Roads small(size, kSizes[0]);
        table.growth(
            "written / in documents of 200 slabs", large.elements(), [&] { large.write(); }, small.elements(),
            [&] { small.write(); }, kGrowth);
        table.growth("read / in documents of 200 slabs", large.elements(), large.read(), small.elements(), small.read(),
                     kGrowth);
    }
    return table.print();
}
