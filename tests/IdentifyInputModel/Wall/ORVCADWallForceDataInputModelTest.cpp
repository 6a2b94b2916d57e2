#include "IdentifyInputModel/Wall/ORVCADWallForceDataInputModel.h"

#include "IdentifyInputModel/Wall/WallInputFixture.h"

#include <type_traits>

using namespace wallinput;

namespace {

template <typename T, typename = void> struct HasCloudCall : std::false_type
{};
template <typename T>
struct HasCloudCall<T, std::void_t<decltype(std::declval<T &>().saveToJson_ToCloud(std::declval<QJsonObject &>()))>>
    : std::true_type
{};

TEST(ORVCADWallForceDataInputModelTest, hasNoCloudCallUnlikeTheBrickModel)
{
    EXPECT_FALSE(HasCloudCall<Force>::value);
    EXPECT_TRUE(HasCloudCall<Brick>::value);
}

} // namespace
