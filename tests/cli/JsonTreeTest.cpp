#include "cli/JsonTree.h"

#include "cli/StrictJsonText.h"

#include <gtest/gtest.h>

using namespace orvcad;

namespace {

/** Line, column, path and value of what stands at a path. */
std::string at(const JsonTree &tree, const QString &path)
{
    const JsonTree::Index found = tree.find(path);
    const JsonTree::Position position = tree.position(tree.node(found).offset);
    return std::to_string(position.line) + ':' + std::to_string(position.column) + ' ' +
           tree.path(found).toStdString() + ' ' + std::string(tree.node(found).text);
}

std::string faultsOf(const QByteArray &text)
{
    const JsonTree tree(text);
    std::string faults;
    for (const JsonTree::TextFault &fault : tree.textFaults()) {
        const JsonTree::Position position = tree.position(fault.offset);
        faults += std::to_string(position.line) + ':' + std::to_string(position.column) + ' ' +
                  (fault.node == JsonTree::kNone ? "-" : tree.pointer(fault.node).toStdString()) + ' ' +
                  fault.reason.toStdString() + '\n';
    }
    return faults;
}

TEST(JsonTreeTest, eachValueKnowsItsPlace)
{
    const JsonTree tree("{\"a\": [1,\n  {\"b/c\": \"x\\u4e00\"}, true],\n \"楼\": null}");
    EXPECT_EQ(at(tree, "a"), "1:7 a ");
    EXPECT_EQ(at(tree, "a[0]"), "1:8 a[0] 1");
    EXPECT_EQ(at(tree, "a[1].b/c"), "2:11 a[1].b/c x一");
    EXPECT_EQ(at(tree, "a[2]"), "2:23 a[2] true");
    EXPECT_EQ(at(tree, "楼"), "3:7 楼 null");
    EXPECT_EQ(tree.pointer(tree.find("a[1].b/c")), "/a/1/b~1c");
    EXPECT_EQ(tree.pointer(0), "");
    EXPECT_EQ(tree.pointer(tree.find("a[1]"), "d"), "/a/1/d");
    EXPECT_EQ(tree.path(0, "d"), "d");
}

TEST(JsonTreeTest, pathThatLeadsNowhereFindsTheInnermostValueOnTheWay)
{
    const JsonTree tree(R"({"a": {"b": 1}, "ab": 2})");
    EXPECT_EQ(tree.path(tree.find("a.c")), "a");
    EXPECT_EQ(tree.path(tree.find("ab")), "ab");
    EXPECT_EQ(tree.find("x"), 0);
}

TEST(JsonTreeTest, keyMayHoldTheSignsBetweenSteps)
{
    const JsonTree tree(R"({"a": {"b.c[0]": {"d": 5}}, "x.y": [6]})");
    EXPECT_EQ(at(tree, "a.b.c[0].d"), "1:24 a.b.c[0].d 5");
    EXPECT_EQ(at(tree, "x.y[0]"), "1:37 x.y[0] 6");
    const QByteArray many = QByteArray("a").repeated(3) + QByteArray(".").repeated(100000);
    EXPECT_EQ(JsonTree("{\"" + many + "\": 1}").find(QString::fromLatin1(many)), 0);
}

TEST(JsonTreeTest, byteOrderMarkIsPassedOver)
{
    const JsonTree tree("\xEF\xBB\xBF{\"a\": 5}");
    EXPECT_FALSE(tree.isBroken());
    EXPECT_EQ(tree.number(tree.find("a")), 5.0);
}

TEST(JsonTreeTest, textThatCountsLacksWhatStandsOnceMore)
{
    const auto counting = [](const char *text) { return JsonTree(text).textThatCounts().toStdString(); };
    EXPECT_EQ(counting(R"({"a": {"a": 1}, "b": [{"a": 2}]})"), R"({"a": {"a": 1}, "b": [{"a": 2}]})");
    EXPECT_EQ(counting(R"({"a": {"b": 1}, "c": 2, "a": 3, "d": 4})"), R"({"c": 2, "a": 3, "d": 4})");
    EXPECT_EQ(counting(R"({"a": 1, "a": 2, "a": 3})"), R"({"a": 3})");
    EXPECT_EQ(counting(R"([{"a": {"b": 1, "b": 2}, "a": {"c": 3, "c": 4}}])"), R"([{"a": {"c": 4}}])");
    EXPECT_EQ(counting("{\"\\u0061\": [1], \"a\": \"楼\"}"), "{\"a\": \"楼\"}");
}

TEST(JsonTreeTest, everyMemberThatStandsTwiceIsTold)
{
    EXPECT_EQ(faultsOf("{\"a\": 1, \"b\": 2,\n \"a\": 3, \"b\": 4}"),
              "2:2 /a stands twice in one object, and the last one would count\n"
              "2:10 /b stands twice in one object, and the last one would count\n");
    const JsonTree tree(R"({"a": 1, "a": 2})");
    EXPECT_EQ(tree.number(tree.member(0, "a")), 2.0);
}

TEST(JsonTreeTest, numbersThatAreNotReadAsTheyStandAreTold)
{
    EXPECT_EQ(faultsOf("[9007199254740993, 1e999]"),
              "1:2 /0 the number 9007199254740993 would be read as 9007199254740992\n"
              "1:20  not JSON: Number too big to be stored in double.\n");
}

TEST(JsonTreeTest, brokenTextEndsAtItsFault)
{
    EXPECT_EQ(faultsOf("{\"a\": [1 2]}"), "1:10 /a not JSON: Missing a comma or ']' after an array element.\n");
    EXPECT_EQ(faultsOf(""), "1:1 - not JSON: The document is empty.\n");
    EXPECT_EQ(faultsOf("{\"a\": \"\xFF\"}"), "1:8  not JSON: Invalid encoding in string.\n");
    EXPECT_EQ(faultsOf(QByteArray("{}\0x", 4)), "1:3  not JSON: a character of code 0 stands behind the document.\n");
}

TEST(JsonTreeTest, depthDoesNotMatter)
{
    constexpr int depth = 100000;
    const JsonTree tree(QByteArray(depth, '[') + QByteArray(depth, ']'));
    EXPECT_FALSE(tree.isBroken());
    EXPECT_EQ(tree.pointer(depth - 1).size(), 2 * (depth - 1));
    EXPECT_TRUE(JsonTree(QByteArray(depth, '[')).isBroken());
}

TEST(JsonTreeTest, treeIsFilledFromAnotherForm)
{
    const auto tree = JsonTree::over("<a b='1'/>");
    const JsonTree::Index top = tree->add(JsonTree::Kind::Object, JsonTree::kNone, 0);
    const JsonTree::Index value = tree->add(JsonTree::Kind::Text, top, 3);
    tree->setKey(value, "b", 3);
    tree->setText(value, "1");
    EXPECT_EQ(at(*tree, "b"), "1:4 b 1");
}

} // namespace
