#include "guide/page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "scenario/scenario_error.h"

namespace brooklander::guide {
namespace {

using scenario::Unmet;
using testing::HasSubstr;

// A page whose values are the words that name them, and whose load file has one line of two fields.
struct TestPage {
    explicit TestPage(bool with_pictures = false)
        : page({.value_of =
                    [](std::string_view written) {
                        return Value{Value::Kind::caption, std::string(written)};
                    },
                .fields_of =
                    [](std::string_view, std::string_view id, std::string_view) {
                        return id == "A-1" ? std::vector<std::string>{"one", "two"}
                                           : std::vector<std::string>{};
                    }},
               with_pictures) {}

    void part(std::initializer_list<std::string> lines) {
        for (const std::string& line : lines) page.add_line(line);
        page.end_part();
    }

    // What stands between the body's tags at the end of the chapter.
    std::string body() {
        page.end_chapter();
        const std::string html = page.html();
        const std::size_t start = html.find("<body>\n") + 7;
        return html.substr(start, html.find("</body>") - start);
    }

    Page page;
};

std::string body_of(std::initializer_list<std::string> lines) {
    TestPage page;
    page.part(lines);
    return page.body();
}

TEST(PageOfTheGuide, LinesMakeParagraphsThatEmptyLinesPart) {
    EXPECT_EQ(body_of({"One", "two.", "", "Three."}), "<p>One two.</p>\n<p>Three.</p>\n");
}

TEST(PageOfTheGuide, ParagraphsEndBeforeCommands) {
    TestPage page;
    page.part({"One."});
    page.part({"Two."});
    EXPECT_EQ(page.body(), "<p>One.</p>\n<p>Two.</p>\n");
}

TEST(PageOfTheGuide, ABackslashCarriesAParagraphOverCommands) {
    TestPage page;
    page.part({"One \\", ""});
    page.part({"two."});
    EXPECT_EQ(page.body(), "<p>One two.</p>\n");
}

TEST(PageOfTheGuide, OnlyValuesAreBold) {
    EXPECT_EQ(body_of({"Press {OK}, __not__ `x < 1`."}),
              "<p>Press <b>OK</b>, <i>not</i> <tt>x &lt; 1</tt>.</p>\n");
    EXPECT_EQ(body_of({"**No**"}), "<p>**No**</p>\n");
}

TEST(PageOfTheGuide, AListGoesOnBehindCommandsAndEmptyLines) {
    TestPage page;
    page.part({"1. One", ""});
    page.part({"2. Two", "", "  More.", "After."});
    EXPECT_EQ(page.body(), "<ol>\n<li>One\n</li>\n<li>Two\n<p>More. After.</p>\n</li>\n</ol>\n");
}

TEST(PageOfTheGuide, AParagraphAtTheMarginEndsAList) {
    EXPECT_EQ(body_of({"- One", "", "After."}), "<ul>\n<li>One\n</li>\n</ul>\n<p>After.</p>\n");
}

TEST(PageOfTheGuide, ItemsAreCounted) { EXPECT_THROW(body_of({"1. One", "3. Three"}), Unmet); }

TEST(PageOfTheGuide, ATableHasAHeading) {
    EXPECT_EQ(body_of({"| A | B |", "| 1 | {x|y} |"}),
              "<table border=\"1\" cellspacing=\"0\" cellpadding=\"4\">\n"
              "<tr><th align=\"left\">A</th><th align=\"left\">B</th></tr>\n"
              "<tr><td>1</td><td><b>x|y</b></td></tr>\n</table>\n");
    EXPECT_THROW(body_of({"| A | B |", "| 1 |"}), Unmet);
    EXPECT_THROW(body_of({"| A | B"}), Unmet);
}

TEST(PageOfTheGuide, FieldsAreHeldAgainstWhereTheyComeFrom) {
    EXPECT_THAT(
        body_of({"@fields load.txt A-1 pH", "| First | one | Words. |", "| Last | two | |"}),
        HasSubstr("<tr><td>2</td><td>Last</td><td><tt>two</tt></td><td></td></tr>"));
    EXPECT_THROW(body_of({"@fields load.txt A-1 pH", "| First | one | |"}), Unmet);
    EXPECT_THROW(body_of({"@fields load.txt A-1 pH", "| Last | two | |", "| First | one | |"}),
                 Unmet);
    EXPECT_THROW(body_of({"@fields load.txt A-1 pH", "| First | | |", "| Last | two | |"}), Unmet);
    EXPECT_THROW(body_of({"@fields load.txt A-2 pH"}), Unmet);
    EXPECT_THROW(body_of({"@fields load.txt A-1 pH"}), Unmet);
    EXPECT_THROW(body_of({"@fields load.txt A-1 pH", "", "Words.", "| First | one | |"}), Unmet);
}

TEST(PageOfTheGuide, APictureIsShownWhereOneWasTaken) {
    TestPage page(true);
    page.page.picture_taken("lake");
    page.part({"![The lake](lake)"});
    EXPECT_EQ(page.body(), "<p><img src=\"help/lake.png\" alt=\"The lake\"></p>\n");
}

TEST(PageOfTheGuide, APageWithoutPicturesLeavesThemOut) {
    TestPage page;
    page.page.picture_taken("lake");
    page.part({"![The lake](lake)"});
    EXPECT_EQ(page.body(), "");
}

TEST(PageOfTheGuide, PicturesAreTakenAndShownOnce) {
    TestPage page;
    EXPECT_THROW(page.part({"![The lake](lake)"}), Unmet);
    page.page.picture_taken("lake");
    EXPECT_THROW(page.page.picture_taken("lake"), Unmet);
    EXPECT_THROW(page.page.end_chapter(), Unmet);
}

TEST(PageOfTheGuide, HeadingsHaveNamesThatLinksReach) {
    EXPECT_EQ(body_of({"## The lake [lake]", "See [it](#lake)."}),
              "<h2><a name=\"lake\"></a>The lake</h2>\n<p>See <a href=\"#lake\">it</a>.</p>\n");
    EXPECT_THROW(body_of({"See [it](#sea)."}), Unmet);
    EXPECT_THROW(body_of({"# One [a]", "# Two [a]"}), Unmet);
}

TEST(ValuesOfTheGuide, BlanksAtTheEndsOfATextCanBeSeen) {
    EXPECT_EQ(html_of({Value::Kind::text, " a b "}), "<tt>\u2423a b\u2423</tt>");
    EXPECT_EQ(html_of({Value::Kind::text, "  "}), "<tt>\u2423\u2423</tt>");
    EXPECT_EQ(html_of({Value::Kind::text, ""}), "<i>(empty)</i>");
    EXPECT_EQ(html_of({Value::Kind::text, "<5 \xB5g"}), "<tt>&lt;5 \u00B5g</tt>");
    EXPECT_EQ(html_of({Value::Kind::no_line, ""}), "<i>no line</i>");
    EXPECT_EQ(html_of({Value::Kind::number, "33"}), "33");
}

TEST(ValuesOfTheGuide, CaptionsGoWithoutTheColonAtTheirEnd) {
    EXPECT_EQ(html_of({Value::Kind::caption, "User ID:"}), "<b>User ID</b>");
    EXPECT_EQ(html_of({Value::Kind::caption, "Use => <X>?"}), "<b>Use =&gt; &lt;X&gt;?</b>");
}

}  // namespace
}  // namespace brooklander::guide
