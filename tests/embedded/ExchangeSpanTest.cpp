#include "platform/embedded/ExchangeSpan.h"

#include "embedded/ExchangeRefusals.h"

using namespace exchangetest;
using hbx::embedded::JsonPlace;
using hbx::embedded::spanFromJson;

namespace {

const Refusal kSpanRefusals[] = {
    {OBJECT(2) ".spans[0].SpanName", "1", OBJECT(2) ".spans[0]: has the unknown member \"SpanName\""},
    {OBJECT(2) ".spans[0].SpanIndex", "1.5", OBJECT(2) ".spans[0].SpanIndex: is not an integer of 32 bits"},
    {OBJECT(2) ".spans[0].SpanLength", "\"5\"", OBJECT(2) ".spans[0].SpanLength: is not a number"},
    {OBJECT(2) ".spans[0].Section", "5", OBJECT(2) ".spans[0].Section: is not a text"},
    {OBJECT(2) ".spans[0]", "5", OBJECT(2) ".spans[0]: is not an object"},
};

class ExchangeSpanRefusalTest : public RefusedDocumentTest
{};

TEST_P(ExchangeSpanRefusalTest, isToldWithPlaceAndReason) { expectRefused(); }

INSTANTIATE_TEST_SUITE_P(Span, ExchangeSpanRefusalTest, ::testing::ValuesIn(kSpanRefusals));

} // namespace

TEST(ExchangeSpanTest, noKeyIsRequired) { EXPECT_EQ(spanFromJson(QJsonObject(), JsonPlace()), QJsonObject()); }

TEST(ExchangeSpanTest, keysOfEachKindAreTakenAsTheyStand)
{
    const QJsonObject span = parsed(R"({"SpanIndex": -1, "SpanLength": 5000.5, "Section": ""})");
    EXPECT_EQ(spanFromJson(span, JsonPlace()), span);
}

TEST(ExchangeSpanTest, anIndexBeyond32BitsIsRefused)
{
    EXPECT_THROW(spanFromJson(parsed(R"({"SpanIndex": 2147483648})"), JsonPlace()), dwgx::JsonRefusal);
}
