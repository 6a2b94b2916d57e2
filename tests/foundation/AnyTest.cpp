#include "foundation/Any.h"

#include "platform/geometry/CVec2.h"

#include <QString>

#include <gmock/gmock.h>

#include <clocale>
#include <cstddef>
#include <limits>
#include <memory>
#include <string>
#include <type_traits>

namespace {

enum Kind : int { Unknown = -1, None = 0, Slab = 4, Hole = 8 };
enum class Small : quint8 { None = 0, Most = 255 };

// ---- Holding

TEST(AnyTest, emptyValueHoldsVoid)
{
    const Any any;
    EXPECT_TRUE(any.isEmpty());
    EXPECT_EQ(any.type(), typeid(void));
    EXPECT_EQ(any.text(), "");
}

TEST(AnyTest, valueIsHeldWithItsExactType)
{
    EXPECT_TRUE(Any(5).holds<int>());
    EXPECT_FALSE(Any(5).holds<unsigned int>());
    EXPECT_TRUE(Any(5.0F).holds<float>());
    EXPECT_TRUE(Any("text").holds<const char *>());
    EXPECT_TRUE(Any(QString("text")).holds<QString>());
    EXPECT_TRUE(Any(qint64(5)).holds<qint64>());
    EXPECT_FALSE(Any(5L).holds<qint64>()) << "long is a type of its own";
    EXPECT_TRUE(Any(Slab).holds<Kind>());
}

TEST(AnyTest, copyHoldsAValueOfItsOwn)
{
    Any first(std::string("one"));
    Any second(first);
    second.cast<std::string>() = "two";
    EXPECT_EQ(first.cast<std::string>(), "one");
    EXPECT_EQ(second.cast<std::string>(), "two");
    first = second;
    EXPECT_EQ(first.cast<std::string>(), "two");
    first = *&first;
    EXPECT_EQ(first.cast<std::string>(), "two");
}

TEST(AnyTest, movedFromValueIsEmpty)
{
    Any first(5);
    Any second(std::move(first));
    EXPECT_EQ(second.cast<int>(), 5);
    EXPECT_TRUE(first.isEmpty());          // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(first.type(), typeid(void)); // NOLINT(bugprone-use-after-move)
    first = std::move(second);
    EXPECT_EQ(first.cast<int>(), 5);
    EXPECT_TRUE(second.isEmpty()); // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(second.type(), typeid(void));
}

TEST(AnyTest, copyOfAnEmptyValueIsEmpty)
{
    const Any first;
    const Any second(first); // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_TRUE(second.isEmpty());
    EXPECT_EQ(second.type(), typeid(void));
}

TEST(AnyTest, heldValueDiesWithItsHolderOnce)
{
    const auto shared = std::make_shared<int>(1);
    {
        Any first(shared);
        const Any second(first);
        EXPECT_EQ(shared.use_count(), 3);
        first = Any();
        EXPECT_EQ(shared.use_count(), 2);
    }
    EXPECT_EQ(shared.use_count(), 1);
}

// ---- Strict access

TEST(AnyTest, castOfTheHeldTypeGivesTheValueItself)
{
    Any any(5);
    any.cast<int>() = 6;
    EXPECT_EQ(std::as_const(any).cast<int>(), 6);
}

TEST(AnyTest, castToAnotherTypeWritesItsLineAndThrows)
{
    const Any any(2.5);
    testing::internal::CaptureStdout();
    EXPECT_THAT([&] { any.cast<int>(); }, testing::ThrowsMessage<std::bad_cast>("bad cast"));
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              std::string("can not cast ") + typeid(int).name() + " from " + typeid(double).name() + "\n");
}

TEST(AnyTest, castOfAnEmptyValueNamesVoid)
{
    Any any;
    testing::internal::CaptureStdout();
    EXPECT_THROW(any.cast<QString>(), std::bad_cast);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              std::string("can not cast ") + typeid(QString).name() + " from " + typeid(void).name() + "\n");
}

// ---- Text

TEST(AnyTest, textOfNumbersIsDecimal)
{
    EXPECT_EQ(Any(-5).text(), "-5");
    EXPECT_EQ(Any(5U).text(), "5");
    EXPECT_EQ(Any(5L).text(), "5");
    EXPECT_EQ(Any(qint64(-9000000000)).text(), "-9000000000");
    EXPECT_EQ(Any(quint64(18446744073709551615ULL)).text(), "18446744073709551615");
    EXPECT_EQ(Any(2.5).text(), "2.500000");
    EXPECT_EQ(Any(2.5F).text(), "2.500000");
    EXPECT_EQ(Any(1e20).text(), "100000000000000000000.000000");
    EXPECT_EQ(Any('A').text(), "65");
    EXPECT_EQ(Any(true).text(), "1");
}

TEST(AnyTest, textOfTextsIsTheirs)
{
    EXPECT_EQ(Any("one").text(), "one");
    EXPECT_EQ(Any(std::string("two")).text(), "two");
    char three[] = "three";
    EXPECT_EQ(Any(three).text(), "three");
    EXPECT_EQ(Any(static_cast<const char *>(nullptr)).text(), "");
}

TEST(AnyTest, textOfPointsQStringsAndEnumerationsIsEmpty)
{
    EXPECT_EQ(Any(vks::CVec2<double>(1.0, 2.0)).text(), "");
    EXPECT_EQ(Any(QString("text")).text(), "");
    EXPECT_EQ(Any(Slab).text(), "");
}

// ---- Conversion to double

TEST(AnyTest, doubleOfNothingIsZero)
{
    EXPECT_EQ(Any().to<double>(), 0.0);
    EXPECT_EQ(Any(nullptr).to<double>(), 0.0);
}

TEST(AnyTest, doubleOfANumberIsTheNumber)
{
    EXPECT_EQ(Any(-5).to<double>(), -5.0);
    EXPECT_EQ(Any(5U).to<double>(), 5.0);
    EXPECT_EQ(Any(2.5F).to<double>(), 2.5);
    EXPECT_EQ(Any(5L).to<double>(), 5.0);
    EXPECT_EQ(Any(0.1).to<double>(), 0.1);
    EXPECT_EQ(Any(0x1p-30F).to<double>(), 0x1p-30); // which the text of a number does not tell
    EXPECT_EQ(Any(qint64(-9000000000)).to<double>(), -9e9);
    EXPECT_EQ(Any(quint64(9000000000)).to<double>(), 9e9);
    EXPECT_EQ(Any('A').to<double>(), 65.0);
    EXPECT_EQ(Any(true).to<double>(), 1.0);
    EXPECT_EQ(Any(false).to<double>(), 0.0);
}

TEST(AnyTest, doubleOfATextIsItsStart)
{
    EXPECT_EQ(Any(std::string("2.5")).to<double>(), 2.5);
    EXPECT_EQ(Any("-1e3").to<double>(), -1000.0);
    EXPECT_EQ(Any(" 12 mm").to<double>(), 12.0);
    EXPECT_EQ(Any("mm 12").to<double>(), 0.0);
    EXPECT_EQ(Any(std::string()).to<double>(), 0.0);
    EXPECT_EQ(Any(static_cast<const char *>(nullptr)).to<double>(), 0.0);
}

TEST(AnyTest, doubleOfAnyOtherTypeIsItsTextParsed)
{
    EXPECT_EQ(Any(vks::CVec2<double>(1.0, 2.0)).to<double>(), 0.0);
    EXPECT_EQ(Any(QString("2.5")).to<double>(), 0.0) << "the text of a QString is empty";
    EXPECT_EQ(Any(Slab).to<double>(), 0.0);
    EXPECT_EQ(Any(static_cast<short>(7)).to<double>(), 7.0);
}

TEST(AnyTest, localePlaysNoPart)
{
    const char *german = std::setlocale(LC_ALL, "de_DE.UTF-8"); // null where it is not installed
    EXPECT_EQ(Any("2.5").to<double>(), 2.5);
    EXPECT_EQ(Any(2.5).text(), "2.500000") << (german ? german : "C");
    std::setlocale(LC_ALL, "C.UTF-8");
}

// ---- Conversion to QString

TEST(AnyTest, qStringOfANumberIsEmpty)
{
    EXPECT_EQ(Any(5).to<QString>(), QString());
    EXPECT_EQ(Any(2.5).to<QString>(), QString());
}

TEST(AnyTest, qStringComesFromAQStringAlone)
{
    EXPECT_EQ(Any(QString("text")).to<QString>(), "text");
    EXPECT_EQ(Any(std::string("text")).to<QString>(), QString());
    EXPECT_EQ(Any("text").to<QString>(), QString());
    EXPECT_EQ(Any().to<QString>(), QString());
}

// ---- Conversion to an enumeration

TEST(AnyTest, enumerationOfItselfIsTheValue) { EXPECT_EQ(Any(Hole).to<Kind>(), Hole); }

TEST(AnyTest, enumerationOfNothingIsZero) { EXPECT_EQ(Any().to<Kind>(), None); }

TEST(AnyTest, enumerationOfAWholeNumberIsTheNumber)
{
    EXPECT_EQ(Any(4).to<Kind>(), Slab);
    EXPECT_EQ(Any(4U).to<Kind>(), Slab);
    EXPECT_EQ(Any(qint64(8)).to<Kind>(), Hole);
    EXPECT_EQ(Any(quint64(8)).to<Kind>(), Hole);
    EXPECT_EQ(Any('\x04').to<Kind>(), Slab);
}

TEST(AnyTest, enumerationOfLongFloatDoubleBoolAndNullIsMinusOne)
{
    EXPECT_EQ(Any(4L).to<Kind>(), Unknown);
    EXPECT_EQ(Any(4.0F).to<Kind>(), Unknown);
    EXPECT_EQ(Any(4.0).to<Kind>(), Unknown);
    EXPECT_EQ(Any(true).to<Kind>(), Unknown);
    EXPECT_EQ(Any(nullptr).to<Kind>(), Unknown);
}

TEST(AnyTest, enumerationOfAnythingElseIsMinusOneToo)
{
    EXPECT_EQ(Any("4").to<Kind>(), Unknown);
    EXPECT_EQ(Any(std::string("4")).to<Kind>(), Unknown);
    EXPECT_EQ(Any(QString("4")).to<Kind>(), Unknown);
    EXPECT_EQ(Any(Small::Most).to<Kind>(), Unknown) << "another enumeration";
}

TEST(AnyTest, numberBeyondTheEnumerationIsZero)
{
    EXPECT_EQ(Any(std::numeric_limits<qint64>::max()).to<Kind>(), None);
    EXPECT_EQ(Any(quint64(4294967300)).to<Kind>(), None);
    EXPECT_EQ(Any(3000000000U).to<Kind>(), None);
    EXPECT_EQ(Any(256).to<Small>(), Small::None);
    EXPECT_EQ(Any(-1).to<Small>(), Small::None);
    EXPECT_EQ(Any(255).to<Small>(), Small::Most);
}

// ---- Shape

TEST(AnyTest, valueIsTwoPointersWide)
{
    EXPECT_EQ(sizeof(Any), 2 * sizeof(void *));
    EXPECT_TRUE((std::is_base_of_v<Any::Base, Any::Derived<int>>));
    EXPECT_TRUE(std::is_abstract_v<Any::Base>);
    EXPECT_TRUE(std::is_nothrow_move_constructible_v<Any>);
}

TEST(AnyTest, holderIsClonedByItself)
{
    const Any::Derived<std::string> holder("text");
    const std::unique_ptr<Any::Base> clone(static_cast<const Any::Base &>(holder).clone());
    EXPECT_EQ(clone->text(), "text");
}

} // namespace
