#include "support/failure.hpp"
#include "support/raise.hpp"
#include "support/rows.hpp"
#include "support/temp_tree.hpp"

#include <fl/i18n/expat_loader.hpp>

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <stdexcept>

using namespace fl::i18n;
using namespace std::string_literals;

/// Writes down what it sees; stops, or throws, at the last event.
struct recorder : ExpatEventHandler {
    using ExpatEventHandler::ExpatEventHandler;
    std::string seen, last;
    bool throws = false;

    bool doElementStart(char const* name, char const**) override { return note("<"s + name + ">"); }
    bool doElementData(char const* data, int length) override {
        return note(std::string(data, static_cast<std::size_t>(length)));
    }
    bool doElementEnd(char const* name) override { return note("</"s + name + ">"); }

private:
    bool note(std::string const& event) {
        seen += event;
        if (event == last && throws)
            fl::support::raise(std::range_error("mine"));
        return event != last;
    }
};

struct ExpatLoaderTest : ::testing::Test, fl::testing::temp_tree {
    bool load(std::string const& content, std::string const& last = "", bool throws = false) {
        handler_ = boost::make_shared<recorder>("UTF-8");
        handler_->last = last;
        handler_->throws = throws;
        return ExpatLoader(fl::filesystem::upath(file("x.xml", content).u16string()), handler_).load_file();
    }

    boost::shared_ptr<recorder> handler_;
};

TEST_F(ExpatLoaderTest, StopsWhereTheHandlerSays) {
    for (auto const& [last, seen] : fl::testing::rows<2>(
             "~ <a>x<b></b>y\u00e4</a>  <a> <a>  x <a>x  <b> <a>x<b>  </a> <a>x<b></b>y\u00e4</a>")) {
        SCOPED_TRACE(last);
        bool const whole = last.empty();
        EXPECT_EQ(load("<a>x<b/>y&#228;</a>", last), whole);
        EXPECT_EQ(handler_->seen, seen);
        EXPECT_EQ(handler_->elementEnd("c"), whole) << "nothing reaches a stopped handler";
        auto const thrown =
            fl::testing::failure<std::range_error>([&, at = last] { load("<a>x<b/>y&#228;</a>", at, true); });
        EXPECT_EQ(thrown + handler_->seen, (whole ? "nothing thrown" : "mine") + seen);
    }
}

// An attribute's default would be repeated by each tag; and each tag looks through all that are declared.
TEST_F(ExpatLoaderTest, DeclaredAttributesAreLimited) {
    std::string hundred = "<!ENTITY e 'x'>";
    for (int i = 1; i < 100; ++i)
        hundred += "<!ATTLIST a a" + std::to_string(i) + " ID #IMPLIED>";
    for (auto const& [declarations, loads] :
         {std::pair(hundred, true), std::pair(hundred + "<!ATTLIST b c CDATA #REQUIRED>", false),
          std::pair("<!ATTLIST a b CDATA 'c'>"s, false)})
        EXPECT_EQ(load("<!DOCTYPE a [" + declarations + "]><a>&e;</a>"), loads) << declarations;
}
