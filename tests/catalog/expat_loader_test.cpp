#include "failure.hpp"
#include "support/temp_tree.hpp"

#include <fl/i18n/expat_loader.hpp>

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <stdexcept>

namespace fl::i18n {
namespace {

using testing::temp_tree;

/// Writes down what it sees; stops, or throws, at the event that reads `last`.
class recorder : public ExpatEventHandler {
public:
    explicit recorder(std::string last = "", bool fails = false, std::string const& encoding = "UTF-8")
        : ExpatEventHandler(encoding),
          last_(std::move(last)),
          fails_(fails) {}

    std::string seen;

protected:
    bool doElementStart(char const* name, char const** attributes) override {
        std::string event = std::string("<") + name;
        for (; *attributes; ++attributes)
            event += std::string(" ") + *attributes;
        return note(event + ">");
    }
    bool doElementData(char const* data, int length) override {
        return note(std::string(data, static_cast<std::size_t>(length)));
    }
    bool doElementEnd(char const* name) override { return note(std::string("</") + name + ">"); }

private:
    bool note(std::string const& event) {
        seen += event;
        if (event == last_ && fails_)
            support_raise();
        return event != last_;
    }
    [[noreturn]] static void support_raise() {
        throw boost::enable_current_exception(std::range_error("mine"));
    }

    std::string last_;
    bool fails_;
};

class ExpatLoaderTest : public ::testing::Test {
protected:
    bool load(std::string const& content, boost::shared_ptr<recorder> const& handler) {
        tree_.file("x.xml", content);
        return ExpatLoader(filesystem::upath(tree_.text(u"x.xml")), handler).load_file();
    }

    temp_tree tree_;
};

TEST_F(ExpatLoaderTest, StopsWhereTheHandlerSays) {
    struct {
        char const *last, *seen;
        bool result;
    } const rows[] = {{"", "<a k v l >x<b></b>y\xC3\xA4</a>", true},
                      {"<a k v l >", "<a k v l >", false},
                      {"x", "<a k v l >x", false},
                      {"<b>", "<a k v l >x<b>", false},
                      {"</a>", "<a k v l >x<b></b>y\xC3\xA4</a>", false}};
    for (auto const& row : rows) {
        SCOPED_TRACE(row.last);
        std::string const document = "<a k='v' l=''>x<b/>y&#228;</a>";
        auto const stopping = boost::make_shared<recorder>(row.last);
        EXPECT_EQ(load(document, stopping), row.result);
        EXPECT_EQ(stopping->seen, row.seen);
        EXPECT_EQ(stopping->elementEnd("c"), row.result) << "nothing reaches a stopped handler";
        auto const failing = boost::make_shared<recorder>(row.last, true);
        EXPECT_EQ(testing::failure<std::range_error>([&] { load(document, failing); }),
                  row.result ? "nothing thrown" : "mine");
        EXPECT_EQ(failing->seen, row.seen);
    }
}

TEST_F(ExpatLoaderTest, EncodingOfTheHandlerOverridesTheDocument) {
    std::string const document = "<?xml version='1.0' encoding='ISO-8859-1'?><a>\xC3\xA4</a>";
    for (auto const& [encoding, seen] :
         {std::pair("UTF-8", "<a>\xC3\xA4</a>"), std::pair("ISO-8859-1", "<a>\xC3\x83\xC2\xA4</a>"),
          std::pair("none", "")}) {
        auto const handler = boost::make_shared<recorder>("", false, encoding);
        EXPECT_EQ(load(document, handler), handler->encoding() != "none");
        EXPECT_EQ(handler->seen, seen);
    }
}

TEST_F(ExpatLoaderTest, SizesAroundTheBuffer) {
    for (std::size_t const size : {1023U, 1024U, 1025U, 2048U, 3072U}) {
        SCOPED_TRACE(size);
        auto const handler = boost::make_shared<recorder>();
        EXPECT_EQ(load("<a>" + std::string(size - 7, 'x') + "</a>", handler), true);
        EXPECT_EQ(handler->seen.size(), size);
        EXPECT_EQ(load("<a>" + std::string(size - 3, 'x'), boost::make_shared<recorder>()), false);
    }
}

TEST_F(ExpatLoaderTest, UnreadableFiles) {
    auto const handler = boost::make_shared<recorder>();
    auto const path = [&](char16_t const* name) { return filesystem::upath(tree_.text(name)); };
    EXPECT_FALSE(ExpatLoader(path(u"missing.xml"), handler).load_file());
    EXPECT_FALSE(ExpatLoader(path(u""), handler).load_file()) << "a directory";
    EXPECT_FALSE(ExpatLoader(filesystem::upath(), handler).load_file());
    EXPECT_EQ(load("", handler), false);
    EXPECT_EQ(handler->seen, "");

    tree_.file("x.xml", "<a/>");
    ExpatLoader once(path(u"x.xml"), handler);
    EXPECT_TRUE(once.load_file());
    EXPECT_FALSE(once.load_file());
}

} // namespace
} // namespace fl::i18n
