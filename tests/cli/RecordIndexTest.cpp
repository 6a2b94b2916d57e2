#include "cli/RecordIndex.h"

#include <gtest/gtest.h>

using namespace hbx::embedded;
using orvcad::RecordIndex;

namespace {

TEST(RecordIndexTest, elementsAndObjectsAreFoundByIdAndCalledByTypeAndName)
{
    ProjectRecord project;
    project.elements.resize(1);
    project.elements[0].id = 3;
    project.elements[0].type = 1003;
    project.elements[0].name = "Q1";
    project.drawObjs.resize(1);
    project.drawObjs[0].id = 17;
    project.drawObjs[0].elementId = 3;
    const RecordIndex index(project);
    EXPECT_EQ(index.elements.value(3), &project.elements[0]);
    EXPECT_EQ(index.objects.value(17), &project.drawObjs[0]);
    EXPECT_EQ(RecordIndex::words(index.elements.value(3)), "brick wall Q1");
    EXPECT_EQ(index.words(17), "brick wall Q1, object 17");
    EXPECT_TRUE(index.words(18).isNull());
    EXPECT_TRUE(RecordIndex::words(nullptr).isNull());
}

} // namespace
