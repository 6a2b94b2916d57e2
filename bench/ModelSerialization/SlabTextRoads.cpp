#include "ModelSerialization/ORVCADBoardLocalModelPersistenceService_Sample.h"
#include "ModelSerialization/SlabFloor.h"
#include "ModelSerialization/SlabRecords.h"
#include "suite/Families.h"
#include "suite/PayloadBounds.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <memory>

// Slab models to text and back, against the same documents by hand.

namespace {

using Model = ORVCADBoardLocalModel_Sample;
using Service = ORVCADBoardLocalModelPersistenceService_Sample;

/** A floor with bars and ids, as it goes out. */
std::unique_ptr<Model> floorOf(int slabs)
{
    auto model = std::make_unique<Model>();
    bench::addSlabFloor(*model, slabs);
    bench::addSlabBars(*model, *model);
    return model;
}

QByteArray textOf(const QJsonObject &json) { return QJsonDocument(json).toJson(); }
QJsonObject jsonOf(const QByteArray &text) { return QJsonDocument::fromJson(text).object(); }

/** Elements that come of one slab: beams and bars besides itself. */
constexpr std::size_t kElementsOfASlab = 7;

/** A floor with so many elements or some more, and what both sides need of it. */
struct Documents
{
    explicit Documents(const bench::Load &load)
        : floor(floorOf(static_cast<int>(load.size / kElementsOfASlab + 1))), records(*floor),
          text(textOf(Service::model2json(floor.get(), Service::Everything)))
    {}
    double elements() const { return static_cast<double>(floor->objects().size()); }
    double bytes() const { return text.size(); }

    std::unique_ptr<Model> floor;
    SlabRecords records;
    QByteArray text;
    std::unique_ptr<Model> read;
    SlabRecords copy;
};

/** Whether both sides do not do the same. */
QString difference(const Documents &documents)
{
    const QJsonObject json = jsonOf(documents.text);
    const QJsonObject byHand = documents.records.toJson();
    for (auto array = byHand.begin(); array != byHand.end(); ++array)
        if (array.value().toArray().isEmpty() || json.value(array.key()) != array.value())
            return array.key() + QStringLiteral(" is another one by hand");
    return {};
}

bench::Sides writing(const bench::Load &load)
{
    const auto all = std::make_shared<const Documents>(load);
    return {[all] { bench::keep(textOf(Service::model2json(all->floor.get(), Service::Everything))); },
            [all] { bench::keep(textOf(all->records.toJson())); }, all->elements(), all->bytes(),
            [all] { return difference(*all); }};
}

/** Letting go of the elements of the run before is no part of it. */
bench::Work reading(const std::shared_ptr<Documents> &all)
{
    return {[all] { all->read = std::make_unique<Model>(); },
            [all] { Service::json2model(jsonOf(all->text), all->read.get(), Service::Everything); }};
}

bench::Work readingByHand(const std::shared_ptr<Documents> &all)
{
    return {[all] { all->copy = SlabRecords(); }, [all] { all->copy.fromJson(jsonOf(all->text)); }};
}

/** What cannot be left out: the text walked, and a model of elements with their geometry. */
bench::Work readingIntoElements(const std::shared_ptr<Documents> &all)
{
    const auto clear = [all] {
        all->read = std::make_unique<Model>();
        all->copy = SlabRecords();
    };
    return {clear, [all] {
                all->copy.fromJson(jsonOf(all->text));
                all->copy.addTo(*all->read);
            }};
}

using Floor = bench::Work (*)(const std::shared_ptr<Documents> &all);

auto readingAgainst(Floor floor)
{
    return [floor](const bench::Load &load) {
        const auto all = std::make_shared<Documents>(load);
        return bench::Sides{reading(all), floor(all), all->elements(), all->bytes()};
    };
}

} // namespace

bench::Roads bench::slabTextRoads()
{
    // Elements carry registered properties besides their geometry: their memory is told.
    constexpr Bounds kBounds{kPayloadWritten.ratio, kPayloadWritten.growth};
    return {{"slab model written", "objects by hand, texts ready", kPayloadSizes, kBounds, &writing},
            {"slab model read", "by hand, walked", kPayloadSizes, kBounds, readingAgainst(&readingByHand)},
            {"slab model read", "by hand, with bare elements", kPayloadSizes, kBounds,
             readingAgainst(&readingIntoElements)}};
}
