#include "support/failure.hpp"
#include "support/raise.hpp"
#include "support/temp_tree.hpp"

#include <fl/i18n/expat_loader.hpp>

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <stdexcept>

using namespace fl::i18n;
using namespace std::string_literals;

/// Writes down what it sees; stops, or throws, at the event that reads so.
struct recorder : ExpatEventHandler {
    using ExpatEventHandler::ExpatEventHandler;
    std::string seen, stops_at = "none", throws_at = "none";

    bool doElementStart(char const* name, char const**) override { return note("<"s + name + ">"); }
    bool doElementData(char const* data, int length) override {
        return note(std::string(data, static_cast<std::size_t>(length)));
    }
    bool doElementEnd(char const* name) override { return note("</"s + name + ">"); }

private:
    bool note(std::string const& event) {
        seen += event;
        if (event == throws_at)
            fl::support::raise(std::range_error("mine"));
        return event != stops_at;
    }
};

struct ExpatLoaderTest : ::testing::Test, fl::testing::temp_tree {
    void use_handler(std::string const& encoding) { handler_ = boost::make_shared<recorder>(encoding); }

    ExpatLoader loader(std::string const& content) {
        return ExpatLoader(fl::filesystem::upath(file("x.xml", content).u16string()), handler_);
    }
    bool load(std::string const& content) { return loader(content).load_file(); }

    boost::shared_ptr<recorder> handler_ = boost::make_shared<recorder>("UTF-8");
};

TEST_F(ExpatLoaderTest, StopsWhereTheHandlerSays) {
    using row = std::pair<std::string, char const*>;
    for (auto const& [last, seen] :
         {row("no event", "<a>x<b></b>y\xC3\xA4</a>"), row("<a>", "<a>"), row("x", "<a>x"),
          row("<b>", "<a>x<b>"), row("</a>", "<a>x<b></b>y\xC3\xA4</a>")}) {
        SCOPED_TRACE(last);
        bool const whole = last == "no event";
        use_handler("UTF-8");
        handler_->stops_at = last;
        EXPECT_EQ(load("<a>x<b/>y&#228;</a>"), whole);
        EXPECT_EQ(handler_->seen, seen);
        EXPECT_EQ(handler_->elementEnd("c"), whole) << "nothing reaches a stopped handler";
        use_handler("UTF-8");
        handler_->throws_at = last;
        auto const thrown = fl::testing::failure<std::range_error>([&] { load("<a>x<b/>y&#228;</a>"); });
        EXPECT_EQ(thrown, whole ? "nothing thrown" : "mine");
        EXPECT_EQ(handler_->seen, seen);
    }
}

TEST_F(ExpatLoaderTest, EncodingOfTheHandlerOverridesTheDocument) {
    for (auto const& [encoding, seen] : {std::pair("UTF-8", "<a>\xC3\xA4</a>"), std::pair("none", ""),
                                         std::pair("ISO-8859-1", "<a>\xC3\x83\xC2\xA4</a>")}) {
        use_handler(encoding);
        EXPECT_EQ(load("<?xml version='1.0' encoding='ISO-8859-1'?><a>\xC3\xA4</a>"), *seen != '\0');
        EXPECT_EQ(handler_->seen, seen);
    }
}

TEST_F(ExpatLoaderTest, SizesAroundTheBuffer) {
    EXPECT_FALSE(load(""));
    for (std::size_t const size : {1023U, 1024U, 1025U, 2048U, 3072U}) {
        EXPECT_TRUE(load("<a>" + std::string(size - 7, 'x') + "</a>")) << size;
        EXPECT_FALSE(load("<a>" + std::string(size - 3, 'x'))) << size;
    }
    ExpatLoader once = loader("<a/>");
    EXPECT_TRUE(once.load_file());
    EXPECT_FALSE(once.load_file());
}

// An attribute's default would be repeated by each tag; and each tag looks through all that are declared.
TEST_F(ExpatLoaderTest, DeclaredAttributesAreLimited) {
    std::string hundred = "<!ENTITY e 'x'>";
    for (int i = 1; i < 100; ++i)
        hundred += "<!ATTLIST a a" + std::to_string(i) + " ID #IMPLIED>";
    for (auto const& [declarations, loads] :
         {std::pair(hundred, true), std::pair(hundred + "<!ATTLIST b c CDATA #REQUIRED>", false),
          std::pair("<!ATTLIST a b CDATA 'c'>"s, false), std::pair("<!ATTLIST a b CDATA #FIXED ''>"s, false)})
        EXPECT_EQ(load("<!DOCTYPE a [" + declarations + "]><a>&e;</a>"), loads) << declarations;
}
