#include "slab/BoardLocalModel.h"

#include "foundation/Log_AI.h"
#include "slab/SlabModelFixture.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using Model = ORVCADBoardLocalModel_Sample;
using Object = Model::Object;
using Access = ORVCADBoardLocalModelTestAccess;
using Objects = std::vector<const Object *>;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

template <typename Element> Object *created(Model &model, const QUuid &id) { return Access::add<Element>(model, id); }
template <typename Element, std::vector<const Element *> (Model::*reader)() const> Objects listed(const Model &model)
{
    const auto elements = (model.*reader)();
    return Objects(elements.begin(), elements.end());
}

/** A class whose elements stand in models. */
struct Class
{
    const char *name;
    int type;
    Object *(*create)(Model &, const QUuid &);
    Objects (*read)(const Model &);
};

const Class kClasses[] = {
    {"Beam", 1, &created<Model::Beam>, &listed<Model::Beam, &Model::beams>},
    {"Wall", 2, &created<Model::Wall>, &listed<Model::Wall, &Model::walls>},
    {"Board", 4, &created<Model::Board>, &listed<Model::Board, &Model::boards>},
    {"BoardHole", 8, &created<Model::BoardHole>, &listed<Model::BoardHole, &Model::boardHoles>},
    {"ForcedBar", 16, &created<Model::ForcedBar>, &listed<Model::ForcedBar, &Model::forcedBars>},
    {"StraddleForcedBar", 32, &created<Model::StraddleForcedBar>,
     &listed<Model::StraddleForcedBar, &Model::straddleForcedBars>},
    {"NegativeForcedBar", 64, &created<Model::NegativeForcedBar>,
     &listed<Model::NegativeForcedBar, &Model::negativeForcedBars>},
    {"Column", 128, &created<Model::Column>, &listed<Model::Column, &Model::columns>},
    {"AxisNet", 256, &created<Model::AxisNet>, &listed<Model::AxisNet, &Model::axisNet>},
    {"Raft", 512, &created<Model::Raft>, &listed<Model::Raft, &Model::rafts>},
    {"RaftMainForcedBar", 1024, &created<Model::RaftMainForcedBar>,
     &listed<Model::RaftMainForcedBar, &Model::raftMainForcedBars>},
    {"RaftMainStraddleForcedBar", 2048, &created<Model::RaftMainStraddleForcedBar>,
     &listed<Model::RaftMainStraddleForcedBar, &Model::raftMainStraddleForcedBars>},
    {"RaftNegativeForcedBar", 4096, &created<Model::RaftNegativeForcedBar>,
     &listed<Model::RaftNegativeForcedBar, &Model::raftNegativeForcedBars>},
};
constexpr int kAll = 8191;

const QUuid kId("{6f1d2f3a-5d0a-4f6e-9a5e-0d9a4c1b2e70}");

/** Two elements of every class: one of each in the order of the kinds, and once more. */
Objects fill(Model &model)
{
    Objects made;
    for (int round = 0; round < 2; ++round)
        for (const Class &one : kClasses)
            made.push_back(one.create(model, QUuid::createUuid()));
    return made;
}

class BoardLocalModelTest : public SlabModelFixture
{};

// ---- Creators

TEST_F(BoardLocalModelTest, newModelIsAnEmptyRoot)
{
    EXPECT_EQ(model.childCount(), 0u);
    EXPECT_EQ(model.parent(), nullptr);
    EXPECT_THAT(model.properties(), IsEmpty());
    EXPECT_THAT(model.objects(), IsEmpty());
    EXPECT_THAT(model.findObjects(kAll), IsEmpty());
    for (const Class &one : kClasses)
        EXPECT_THAT(one.read(model), IsEmpty()) << one.name;
}

TEST_F(BoardLocalModelTest, creatorAppendsAnElementOfItsKind)
{
    quint64 count = 0;
    for (const Class &one : kClasses) {
        const Object *element = one.create(model, kId);
        EXPECT_EQ(element->type(), one.type) << one.name;
        EXPECT_EQ(element->parent(), &model) << one.name;
        EXPECT_EQ(model.childCount(), ++count) << one.name;
        EXPECT_EQ(model.children().back(), element) << one.name;
    }
}

TEST_F(BoardLocalModelTest, creatorKeepsTheIdentityTold)
{
    for (const Class &one : kClasses)
        if (one.type != Object::AxisNetKind) {
            EXPECT_EQ(one.create(model, kId)->recongnizedID, kId) << one.name;
        }
}

TEST_F(BoardLocalModelTest, axisNetHasNoIdentity)
{
    EXPECT_TRUE(Access::add<Model::AxisNet>(model)->recongnizedID.isNull());
}

TEST_F(BoardLocalModelTest, anIdentityMayStandTwice)
{
    const auto *first = add<Model::Board>(kId);
    const auto *second = add<Model::Board>(kId);
    EXPECT_NE(first, second);
    EXPECT_THAT(model.boards(), ElementsAre(first, second));
    EXPECT_EQ(first->recongnizedID, second->recongnizedID);
}

// ---- Readers

TEST_F(BoardLocalModelTest, readerGivesItsClassInChildOrder)
{
    const Objects made = fill(model);
    const std::size_t classes = std::size(kClasses);
    for (std::size_t i = 0; i < classes; ++i)
        EXPECT_THAT(kClasses[i].read(model), ElementsAre(made[i], made[i + classes])) << kClasses[i].name;
}

TEST_F(BoardLocalModelTest, objectsGivesAllElementsInChildOrder)
{
    const Objects made = fill(model);
    EXPECT_EQ(model.objects(), made);
}

TEST_F(BoardLocalModelTest, readersFollowTheOrderOfTheChildrenNow)
{
    const auto *first = add<Model::Wall>();
    const auto *second = add<Model::Wall>();
    auto *third = add<Model::Wall>();
    ASSERT_TRUE(model.insertChild(0, static_cast<cv::Object_AI *>(third))); // changes places with the first
    EXPECT_THAT(model.walls(), ElementsAre(third, second, first));
    EXPECT_THAT(model.objects(), ElementsAre(third, second, first));
}

TEST_F(BoardLocalModelTest, elementsDeeperInTheTreeStandBehindTheChildrenOfTheModel)
{
    auto *outer = add<Model::Board>();
    auto *inOuter = new Model::Board(outer);
    auto *inInner = new Model::Board(inOuter);
    auto *alsoInOuter = new Model::Board(outer);
    auto *group = new cv::Object_AI("group", &model);
    auto *inGroup = new Model::Board(group);
    auto *last = add<Model::Board>();
    EXPECT_THAT(model.boards(), ElementsAre(outer, last, inOuter, alsoInOuter, inInner, inGroup));
    EXPECT_THAT(model.objects(), ElementsAre(outer, last, inOuter, alsoInOuter, inInner, inGroup));
}

TEST_F(BoardLocalModelTest, readersGiveWhatTheSearchWithADynamicCastGives)
{
    Objects made = fill(model);
    for (std::size_t i = 0; i < made.size(); i += 3)
        new Model::Beam(const_cast<Object *>(made[i]));
    new cv::Object_AI("none", &model);
    const auto search = [this](auto matches) {
        Objects found;
        for (cv::Object_AI *object : model.findChildren_if(matches, FindWholeSubtree))
            found.push_back(static_cast<const Object *>(object));
        return found;
    };
    EXPECT_EQ(model.objects(), search([](auto *node) { return dynamic_cast<Object *>(node) != nullptr; }));
    const auto beams = model.beams();
    EXPECT_EQ(Objects(beams.begin(), beams.end()),
              search([](auto *node) { return dynamic_cast<Model::Beam *>(node) != nullptr; }));
}

TEST_F(BoardLocalModelTest, logsAndOtherObjectsAreNoElements)
{
    new cv::Object_AI("group", &model);
    auto *board = add<Model::Board>();
    model.log("floor", "", 1.0);
    board->log("thickness", "", 0.5);
    EXPECT_THAT(model.objects(), ElementsAre(board));
    EXPECT_THAT(model.findObjects(kAll), ElementsAre(board));
    EXPECT_THAT(model.boards(), ElementsAre(board));
    EXPECT_THAT(model.beams(), IsEmpty());
    model.clearLog();
}

/** A kind of element that somebody else adds. */
struct Pile : Model::SectionObject
{
    explicit Pile(cv::Object_AI *parent) : SectionObject(static_cast<Types>(8192), parent) {}
};

TEST_F(BoardLocalModelTest, elementOfAnotherClassIsAmongTheObjectsAlone)
{
    auto *pile = new Pile(&model);
    const auto *column = add<Model::Column>();
    EXPECT_THAT(model.objects(), ElementsAre(pile, column));
    EXPECT_THAT(model.columns(), ElementsAre(column));
    EXPECT_THAT(model.findObjects(kAll), ElementsAre(column));
    EXPECT_THAT(model.findObjects(8192), ElementsAre(pile));
}

/** Asks a model for its elements whenever one comes. */
struct AskingModel : Model
{
    void event(Event *event) override
    {
        if (event->type == Event::ChildAdded)
            counts.push_back(objects().size() + boards().size());
    }
    std::vector<std::size_t> counts;
};

TEST_F(BoardLocalModelTest, elementIsReadFromWhenItIsMadeAndNotWhileItIs)
{
    AskingModel asking;
    Access::add<Model::Board>(asking);
    Access::add<Model::Board>(asking);
    EXPECT_THAT(asking.counts, ElementsAre(0u, 2u));
}

// ---- Search by kind

TEST_F(BoardLocalModelTest, findObjectsGivesTheKindsOfTheMaskInChildOrder)
{
    const auto *hole = add<Model::BoardHole>();
    add<Model::Beam>();
    const auto *board = add<Model::Board>();
    add<Model::Raft>();
    const auto *second = add<Model::BoardHole>();
    EXPECT_THAT(model.findObjects(4 | 8), ElementsAre(hole, board, second));
}

TEST_F(BoardLocalModelTest, findObjectsByOneBitGivesOneKind)
{
    fill(model);
    for (const Class &one : kClasses)
        EXPECT_EQ(model.findObjects(one.type), one.read(model)) << one.name;
}

TEST_F(BoardLocalModelTest, maskOfAllKindsGivesAllObjects)
{
    fill(model);
    EXPECT_EQ(model.findObjects(8191), model.objects());
    EXPECT_EQ(model.findObjects(-1), model.objects());
    EXPECT_EQ(Object::AllKinds, 8191);
}

TEST_F(BoardLocalModelTest, maskWithoutKindsGivesNothing)
{
    fill(model);
    EXPECT_THAT(model.findObjects(0), IsEmpty());
    EXPECT_THAT(model.findObjects(8192), IsEmpty());
}

TEST_F(BoardLocalModelTest, readersGoByClassAndFindObjectsByTheKindThatTextOverwrote)
{
    auto *column = add<Model::Column>();
    Access::setType(*column, 4 | 1);
    EXPECT_EQ(column->type(), 5);
    EXPECT_THAT(model.columns(), ElementsAre(column));
    EXPECT_THAT(model.boards(), IsEmpty());
    EXPECT_THAT(model.findObjects(128), IsEmpty());
    EXPECT_THAT(model.findObjects(4), ElementsAre(column));
    EXPECT_THAT(model.findObjects(1), ElementsAre(column));
    Access::setType(*column, 0);
    EXPECT_THAT(model.findObjects(kAll), IsEmpty());
    EXPECT_THAT(model.objects(), ElementsAre(column));
}

// ---- Life of a model

static_assert(!std::is_copy_constructible_v<Model> && !std::is_copy_assignable_v<Model>);
static_assert(std::is_base_of_v<cv::Object_AI, Model> && std::is_default_constructible_v<Model>);

TEST_F(BoardLocalModelTest, movedModelHasTheElementsAndTheOtherNone)
{
    const Objects made = fill(model);
    model.setObjectName("F2");
    model.setProperty("region", QString("House"));
    const Model moved(std::move(model));
    EXPECT_EQ(moved.objects(), made);
    EXPECT_EQ(moved.objectName(), "F2");
    EXPECT_EQ(moved.property("region").to<QString>(), "House");
    for (const Object *object : made)
        EXPECT_EQ(object->parent(), &moved);
    EXPECT_THAT(model.objects(), IsEmpty()); // NOLINT(bugprone-use-after-move): tells what is left
    EXPECT_EQ(model.childCount(), 0u);
}

TEST_F(BoardLocalModelTest, modelThatWasMovedFromCanBeFilledAgain)
{
    fill(model);
    const Model moved(std::move(model));
    const auto *board = add<Model::Board>(kId); // NOLINT(bugprone-use-after-move): that is the question
    EXPECT_THAT(model.objects(), ElementsAre(board));
    EXPECT_EQ(moved.objects().size(), 2 * std::size(kClasses));
}

TEST_F(BoardLocalModelTest, elementsDieWithTheModel)
{
    int dead = 0;
    {
        Model local;
        for (const Object *object : fill(local))
            const_cast<Object *>(object)->setCallbackBeforeDestroyed([&dead] { ++dead; });
    }
    EXPECT_EQ(dead, 26);
}

TEST_F(BoardLocalModelTest, elementThatIsDeletedLeavesTheModel)
{
    const auto *first = add<Model::Board>();
    const auto *second = add<Model::Board>();
    delete first;
    EXPECT_THAT(model.boards(), ElementsAre(second));
}

TEST_F(BoardLocalModelTest, geometryIsSharedAndOutlivesTheModelWhereItIsHeld)
{
    const PolygonPtr surface = rectangle(0, 0, 10, 20);
    {
        Model local;
        Access::add<Model::Board>(local)->surface = surface;
        Access::add<Model::BoardHole>(local)->surface = surface;
        EXPECT_EQ(surface->HolderCount(), 3);
    }
    EXPECT_EQ(surface->HolderCount(), 1);
}

using BoardLocalModelDeathTest = BoardLocalModelTest;

TEST_F(BoardLocalModelDeathTest, modelMayNotDieOverALogOfAnElement)
{
    const auto die = [] {
        Model local;
        Access::add<Model::Board>(local)->log("thickness", "", 0.5);
    };
    EXPECT_DEATH(die(), "There are no saved logs");
}

} // namespace
