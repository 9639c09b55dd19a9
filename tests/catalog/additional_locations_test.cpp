// The registry is process-wide: each test runs in a process of its own.

#include "support/failure.hpp"
#include "support/temp_tree.hpp"
#include "support/threads.hpp"

#include <fl/i18n/locale.hpp>
#include <fl/i18n/message_catalog.hpp>
#include <fl/i18n/message_id_completion.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fl::i18n {
namespace {

using ::testing::AnyOf;
using testing::failure;
using roots = std::vector<ustring>;

/// "main" is there from the start; "addon" has catalogs of its own and some that main has too; "bare" has no
/// resources.
struct AdditionalLocations : ::testing::Test, testing::temp_tree {
    AdditionalLocations() {
        for (char const* name : {"main/resources/app/en/text", "main/resources/app/de/text",
                                 "addon/resources/app/en/text", "addon/resources/app/de_CH/text",
                                 "addon/resources/extra/en/sub/deep/leaf", "addon/resources/app/en/second"})
            write(name);
        file("addon/resources/app/en/readme.txt");
        file("addon/resources/no_component.xml");
        file("bare/file");
    }

    /// A catalog whose message "k" says where it lies.
    void write(std::string const& name) const {
        file(name + ".xml", "<rsccat><message><entry key='k'>" + name + "</entry></message></rsccat>");
    }

    void initialise() const { ASSERT_TRUE(MessageCatalog::MessageCatalogInit(main_)); }
    static void add(roots const& list) { MessageCatalog::set_additional_resource_locations(list); }
    static void remove(ustring const& root) { MessageCatalog::remove_additional_resource_location(root); }
    static std::size_t count() { return MessageCatalogImpl::getTopLevelResourceLocations().size(); }

    /// Where the catalog lies that answers, or "none".
    static std::string answer(char const* locale, std::string const& id) try {
        ustring const text =
            MessageCatalog::get_message(MessageID(id + ":k"), *QnLocale::createLocale(locale));
        return {text.begin(), text.begin() + static_cast<std::ptrdiff_t>(text.find(u'/'))};
    } catch (MessageCatalog::MessageCatalogLoadFailed const&) {
        return "none";
    }

    ustring const main_ = text(u"main"), addon_ = text(u"addon"), bare_ = text(u"bare");
};

TEST_F(AdditionalLocations, RefuseWhatTheyCannotUse) {
    using IncorrectRoot = MessageCatalog::MessageCatalogIncorrectRoot;
    using NotInitialized = MessageCatalog::MessageCatalogNotInitialized;
    EXPECT_NE("nothing thrown", failure<NotInitialized>(add, roots{addon_}));
    EXPECT_NE("nothing thrown", failure<NotInitialized>(add, roots{}));
    EXPECT_NE("nothing thrown", failure<NotInitialized>(remove, addon_));
    initialise();
    for (roots const& bad : {roots{}, roots{addon_, bare_, addon_}, roots{text(u"none")},
                             roots{ustring(u"\0", 1)}, roots{addon_, ustring(5000, u'a')}}) {
        EXPECT_EQ("Incorrect Message Root Set", failure<IncorrectRoot>(add, bad));
        EXPECT_EQ(1U, count());
    }
    EXPECT_EQ("Path is not valid!", failure<MessageCatalog::InvalidPathSupplied>(remove, ustring()));
    for (ustring const& root : {main_, addon_, bare_})
        EXPECT_EQ("Resource path not found!", failure<MessageCatalog::ResourcePathNotFound>(remove, root));
    EXPECT_EQ(1U, count());
}

TEST_F(AdditionalLocations, WinOnlyByABetterLocale) {
    initialise();
    EXPECT_EQ("main", answer("en_US", "app:text"));
    EXPECT_EQ("main", answer("de_CH", "app:text"));
    EXPECT_EQ("none", answer("en_US", "extra:sub:deep:leaf"));
    add({addon_ + u"//"});
    EXPECT_EQ("main", answer("de_CH", "app:text")) << "a loaded catalog stays until it is flushed";
    MessageCatalog::FlushCatalogFromCache(CatalogID("app:text"));
    EXPECT_EQ("addon", answer("de_CH", "app:text"));
    EXPECT_EQ("main", answer("de_DE", "app:text"));
    EXPECT_EQ("main", answer("en_US", "app:text"));
    EXPECT_EQ("addon", answer("ja_JP", "extra:sub:deep:leaf"));
}

TEST_F(AdditionalLocations, TakeTheirCatalogsWithThem) {
    write("addon/resources/app/de/only_german");
    initialise();
    write("third/resources/app/en/third");
    add({addon_, text(u"third"), addon_});
    add({main_, addon_});
    EXPECT_EQ(6U, count());
    std::shared_ptr<MessageCatalog> const held =
        MessageCatalog::GetMessageCatalog(CatalogID("app:second"), *QnLocale::createLocale("en_US"));
    struct {
        char const* locale;
        char const* catalog;
        char const* before;
        char const* after;
    } const rows[] = {
        {"de_CH", "app:text", "addon", "main"},
        {"en_US", "extra:sub:deep:leaf", "addon", "none"},
        {"fr_FR", "app:second", "addon", "none"},
        {"de_DE", "app:only_german", "addon", "addon"}, // unknown to the walk: it has no English file
    };
    for (auto const& row : rows)
        EXPECT_EQ(row.before, answer(row.locale, row.catalog)) << row.catalog;
    remove(addon_);
    using filesystem::upath;
    EXPECT_EQ((std::vector{upath(main_ + u"/resources"), upath(text(u"third/resources")),
                           upath(main_ + u"/resources")}),
              MessageCatalogImpl::getTopLevelResourceLocations());
    for (auto const& row : rows)
        EXPECT_EQ(row.after, answer(row.locale, row.catalog)) << row.catalog;
    EXPECT_FALSE(held->get_message_for_key("k").empty());
    EXPECT_NE("nothing thrown", failure<MessageCatalog::ResourcePathNotFound>(remove, addon_));
}

TEST_F(AdditionalLocations, StayReachableWhenThereFromTheStart) {
    initialise();
    add({main_});
    std::shared_ptr<MessageCatalog> const before = MessageCatalog::GetMessageCatalog(CatalogID("app:text"));
    std::filesystem::remove_all(root() / "main"); // nothing is looked at on the disk
    remove(main_);
    EXPECT_EQ(1U, count());
    EXPECT_EQ(before, MessageCatalog::GetMessageCatalog(CatalogID("app:text")));
}

TEST_F(AdditionalLocations, StayWhenTheirRemovalFails) {
    initialise();
    add({addon_});
    std::string const unknown = "Unknown error while removal of path! Error : ";
    std::filesystem::path const bad_name = root() / "addon/resources/app/en/bad-name.xml";
    auto const removal_failure = [this] {
        return failure<MessageCatalog::ResPathRemovalUnknownError>(remove, addon_);
    };
    file("addon/resources/app/en/bad-name.xml");
    EXPECT_EQ(unknown + "Bad Catalog ID", removal_failure());
    std::filesystem::rename(bad_name, bad_name.parent_path() / "n\xC3\xA4me.xml");
    EXPECT_EQ(0U, removal_failure().find(unknown));
    std::filesystem::remove(bad_name.parent_path() / "n\xC3\xA4me.xml");
    std::filesystem::create_directories(root() / "addon/resources/german/de");
    EXPECT_EQ(0U, removal_failure().find(unknown)) << "a component without English";
    std::filesystem::rename(root() / "addon", root() / "gone");
    EXPECT_EQ("Resource directory not found on the path!",
              failure<MessageCatalog::ResDirNotPresent>(remove, addon_));
    EXPECT_EQ(2U, count());
    std::filesystem::rename(root() / "gone", root() / "addon");
    std::filesystem::create_directories(root() / "addon/resources/german/en");
    std::filesystem::create_directory_symlink("..", root() / "addon/resources/app/en/loop");
    remove(addon_);
    EXPECT_EQ(1U, count());
}

TEST_F(AdditionalLocations, ComeAndGoWhileOthersLookUp) {
    file("main/derived/share/resources/app/catalog_map.xml",
         "<MessageCatalogMap><entry key='app:text'/></MessageCatalogMap>");
    file("addon/derived/share/resources/extra/catalog_map.xml",
         "<MessageCatalogMap><entry key='extra:sub:deep:leaf'/></MessageCatalogMap>");
    initialise();
    testing::run_in_threads(6, [this](int number) {
        for (int round = 0; round < 40; ++round) {
            if (number == 0) {
                add({addon_});
                remove(addon_);
            } else if (number == 1) {
                EXPECT_EQ(1U, getMessageIdCompletions(u"app:te").completions.size());
                EXPECT_LE(getMessageIdCompletions(u"extra:").completions.size(), 1U);
                EXPECT_EQ(1U, getMessageIdCompletions(u"app:text:").completions.size());
            } else {
                EXPECT_EQ("main", answer("en_US", "app:text"));
                EXPECT_THAT(answer("de_CH", "app:text"), AnyOf("main", "addon"));
                EXPECT_THAT(answer("en_US", "extra:sub:deep:leaf"), AnyOf("none", "addon"));
            }
        }
    });
    EXPECT_EQ("none", answer("en_US", "extra:sub:deep:leaf"));
}

} // namespace
} // namespace fl::i18n
