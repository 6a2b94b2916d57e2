#include "cli/PlanPicture.h"

#include "cli/Command.h"

#include <gtest/gtest.h>

#include <QString>

using orvcad::pngOf;

namespace {

const QByteArray kPage = R"(<svg xmlns="http://www.w3.org/2000/svg" width="40mm" height="20mm" viewBox="0 0 40 20"/>)";

/** A number of four bytes in a PNG file, the highest first. */
int numberAt(const QByteArray &png, int place)
{
    int number = 0;
    for (int i = 0; i < 4; ++i)
        number = number * 256 + static_cast<unsigned char>(png[place + i]);
    return number;
}

TEST(PlanPictureTest, pictureHasTheWidthThatIsAskedForAndTheFormOfThePage)
{
    const QByteArray png = pngOf(kPage, 400);
    ASSERT_TRUE(png.startsWith("\x89PNG\r\n\x1a\n"));
    EXPECT_EQ(numberAt(png, 16), 400);
    EXPECT_EQ(numberAt(png, 20), 200);
}

TEST(PlanPictureTest, samePageGivesTheSamePicture) { EXPECT_EQ(pngOf(kPage, 300), pngOf(kPage, 300)); }

TEST(PlanPictureTest, pageThatCannotBePaintedIsRefusedWithTheReason)
{
    try {
        pngOf("no page", 400);
        FAIL() << "nothing was thrown";
    } catch (const orvcad::CommandFailure &failure) {
        EXPECT_EQ(failure.code(), orvcad::kBadInput);
        EXPECT_TRUE(failure.message().startsWith("rsvg-convert: has failed: ")) << failure.message().toStdString();
    }
}

} // namespace
