#include "ModelSerialization/ORVCADBoardLocalModelPersistenceService_Sample.h"
#include "ModelSerialization/SlabRecords.h"
#include "platform/geometry/CLine2d.h"
#include "support/RatioBench.h"

#include <QJsonDocument>

#include <cmath>
#include <cstdlib>
#include <memory>
#include <random>

// Slab models to text and back, against the same documents by hand.

namespace {

using Model = ORVCADBoardLocalModel_Sample;
using Service = ORVCADBoardLocalModelPersistenceService_Sample;
using Point = vks::CVec2<double>;

constexpr std::size_t kSizes[] = {1000, 10000, 100000};

// Ceilings of the ratios.
constexpr double kWritten = 1.25;
constexpr double kRead = 1.25;
// What plain records read within 1.25 costs more here: each element stands in a tree and carries registered properties.
// That is some 2 kB of memory of its own, which is touched for the first time while the text is read.
constexpr double kReadWithoutElements = 1.7;
constexpr double kGrowth = 1.3;

/** A model as it comes from a floor plan: coordinates in tenths of a millimetre. */
class Floor
{
public:
    explicit Floor(std::size_t size)
    {
        for (std::size_t i = 0; i < size / 10; ++i) {
            for (int k = 0; k < 3; ++k)
                addBoard();
            for (int k = 0; k < 3; ++k)
                addForcedBar();
            for (int k = 0; k < 2; ++k)
                addNegativeBar();
            for (int k = 0; k < 2; ++k)
                addBeam();
        }
    }

    Model model;

private:
    template <typename Element> Element *add(const char *name)
    {
        auto *element = new Element(&model);
        element->elementId = ++m_id;
        element->name = QString::fromLatin1(name) + QString::number(m_id % 40);
        element->recongnizedID = QUuid::createUuid();
        return element;
    }
    void addBoard()
    {
        auto *board = add<Model::Board>("LB");
        board->surface = rectangle();
        board->thickness = 120;
        board->elev = 2.95;
        board->stateDescript = QStringLiteral("h=120");
    }
    template <typename Bar> void setBar(Bar &bar)
    {
        bar.barInfo = QStringLiteral("C8@200");
        bar.refPoint = point();
        bar.refPointValid = true;
        bar.rowNumber = 1;
    }
    void addForcedBar()
    {
        auto *bar = add<Model::ForcedBar>("X&Y");
        setBar(*bar);
        bar->surface = rectangle();
        bar->supportPoly = rectangle();
        bar->direction = {1, 0};
    }
    void addNegativeBar()
    {
        auto *bar = add<Model::NegativeForcedBar>("FJ");
        setBar(*bar);
        bar->line = line();
        bar->leftStretchLength = bar->rightStretchLength = 900;
        bar->distributeBarInfo = QStringLiteral("A6@250");
    }
    void addBeam()
    {
        auto *beam = add<Model::Beam>("KL");
        beam->line = line();
        beam->width = 250;
        beam->distanceToLeft = 125;
        beam->startTopElev = beam->endTopElev = 2.95;
    }

    double coordinate() { return std::round(m_coordinate(m_random) * 10) / 10; }
    Point point()
    {
        const double x = coordinate();
        return {x, coordinate()};
    }
    vks::CRefPtr<vks::CCurve2d> line() { return new vks::CLine2d(point(), point()); }
    vks::CRefPtr<vks::CPolygon> rectangle()
    {
        const Point low = point();
        const Point high = point();
        const Point corners[] = {low, {high.x, low.y}, high, {low.x, high.y}};
        auto *loop = new vks::CLoop;
        for (int i = 0; i < 4; ++i)
            loop->AddCurve(new vks::CLine2d(corners[i], corners[(i + 1) % 4]), false);
        vks::CRefPtr<vks::CPolygon> polygon(new vks::CPolygon);
        polygon->AddLoop(loop, true);
        return polygon;
    }

    std::mt19937 m_random{5};
    std::uniform_real_distribution<double> m_coordinate{0, 80'000};
    qint64 m_id = 0;
};

QByteArray textOf(const QJsonObject &json) { return QJsonDocument(json).toJson(QJsonDocument::Compact); }
QJsonObject jsonOf(const QByteArray &text) { return QJsonDocument::fromJson(text).object(); }

/** Both roads of both sides over elements in documents of one size. */
struct Roads
{
    explicit Roads(std::size_t elements, std::size_t documentSize)
        : count(elements / documentSize), floor(std::make_unique<Floor>(documentSize)), records(floor->model),
          text(textOf(Service::model2json(&floor->model, Service::Everything)))
    {}

    void write() const
    {
        for (std::size_t i = 0; i < count; ++i)
            bench::keep(textOf(Service::model2json(&floor->model, Service::Everything)));
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
    std::unique_ptr<Floor> floor;
    SlabRecords records;
    QByteArray text;
    std::vector<std::unique_ptr<Model>> models;
    std::vector<SlabRecords> copies;
};

/** That both sides do the same. */
void check(const Floor &floor)
{
    const QJsonObject json = Service::model2json(&floor.model, Service::Everything);
    const QJsonObject byHand = SlabRecords(floor.model).toJson();
    for (auto array = byHand.begin(); array != byHand.end(); ++array)
        if (json.value(array.key()) != array.value())
            std::abort();
}

} // namespace

int main()
{
    check(Floor(kSizes[0]));
    bench::RatioTable table("Slab text");
    for (const std::size_t size : kSizes) {
        Roads roads(size, size);
        table.row(
            "written / by hand with texts ready", size, [&] { roads.write(); }, [&] { roads.writeByHand(); }, kWritten);
        table.row("read / by hand, with bare elements", size, roads.read(), roads.readIntoElements(), kRead);
        table.row("read / walked without elements and geometry", size, roads.read(), roads.readByHand(),
                  kReadWithoutElements);
    }
    // Both sides handle the same number of elements, so that this tells of the document's size alone.
    for (const std::size_t size : {kSizes[1], kSizes[2]}) {
        Roads large(size, size);
        Roads small(size, kSizes[0]);
        table.row(
            "written / in documents of 1000", size, [&] { large.write(); }, [&] { small.write(); }, kGrowth);
        table.row("read / in documents of 1000", size, large.read(), small.read(), kGrowth);
    }
    return table.print();
}
