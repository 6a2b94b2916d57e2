#include "cli/HtmlText.h"

#include <gtest/gtest.h>

using orvcad::filled;

namespace {

TEST(HtmlTextTest, markupInATextIsText)
{
    EXPECT_EQ(orvcad::htmlText("</script><b> & \"KL-1\""), "&lt;/script&gt;&lt;b&gt; &amp; &quot;KL-1&quot;");
}

TEST(HtmlTextTest, documentInAScriptElementDoesNotEndIt)
{
    EXPECT_EQ(orvcad::scriptJson({{"name", "</script><!--"}}), "{\"name\":\"\\u003c/script>\\u003c!--\"}");
}

TEST(HtmlTextTest, contentIsCalledByItsHash)
{
    EXPECT_EQ(orvcad::contentHash(""), "'sha256-47DEQpj8HBSa+/TImW+5JCeuQeRkm5NMpJWZG3hSuFU='");
}

TEST(HtmlTextTest, placesOfATemplateAreFilledOnce)
{
    EXPECT_EQ(filled("<h1>{{a}}</h1>{{b}}{{a}}", {{"a", "{{b}}"}, {"b", "2"}}), "<h1>{{b}}</h1>2{{b}}");
    EXPECT_EQ(filled("{{unknown}} {{a}} {{", {{"a", "1"}}), "{{unknown}} 1 {{");
    EXPECT_EQ(filled("plain", {}), "plain");
}

} // namespace
