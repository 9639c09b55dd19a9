// The registry is process-wide: each test runs in a process of its own.

#include "catalog/catalog_tree.hpp"
#include "support/failure.hpp"
#include "support/rows.hpp"
#include "support/threads.hpp"

#include <fl/i18n/message_id_completion.hpp>

using namespace fl::i18n;
using fl::ustring;
using fl::testing::failure;
using roots = std::vector<ustring>;

using MessageCatalogLocations = fl::testing::catalog_tree;

constexpr auto add = MessageCatalog::set_additional_resource_locations;
constexpr auto remove_root = MessageCatalog::remove_additional_resource_location;

constexpr auto count = [] { return MessageCatalogImpl::getTopLevelResourceLocations().size(); };

TEST_F(MessageCatalogLocations, RefuseWhatTheyCannotUse) {
    EXPECT_THROW(add({}), MessageCatalog::MessageCatalogNotInitialized);
    EXPECT_THROW(remove_root(addon_), MessageCatalog::MessageCatalogNotInitialized);
    ASSERT_TRUE(MessageCatalog::MessageCatalogInit(main_));
    for (roots const& bad : {roots{}, roots{addon_, bare_, addon_}, roots{text(u"none")},
                             roots{ustring(u"\0", 1)}, roots{addon_, ustring(5000, u'a')}})
        EXPECT_THROW(add(bad), MessageCatalog::MessageCatalogIncorrectRoot) << testing::PrintToString(bad);
    EXPECT_EQ("Path is not valid!", failure<MessageCatalog::InvalidPathSupplied>(remove_root, ustring()));
    for (ustring const& root : {main_, addon_, bare_})
        EXPECT_EQ("Resource path not found!",
                  failure<MessageCatalog::ResourcePathNotFound>(remove_root, root));
    EXPECT_EQ(1U, count());
}

TEST_F(MessageCatalogLocations, WinOnlyByABetterLocaleAndTakeTheirCatalogsWithThem) {
    // Where the catalog lies that answers: before, meanwhile, behind. The last one is not among the English files, by
    // which the catalogs of a location are known.
    auto const rows = fl::testing::rows<5>(R"(
        de_CH app:text             main/app/de/text  addon/app/de_CH/text          main/app/de/text
        de_DE app:text             main/app/de/text  main/app/de/text              main/app/de/text
        ja_JP extra:sub:deep:leaf  none              addon/extra/en/sub/deep/leaf  none
        en_US app:third            none              third/app/en/third            third/app/en/third
        fr_FR app:second           none              addon/app/en/second           none
        de_DE app:only_german      none              addon/app/de/only_german      addon/app/de/only_german)");
    auto const expect_answers = [&](std::size_t column) {
        for (auto const& row : rows)
            EXPECT_EQ(row[column], answer(row[0].c_str(), row[1])) << row[0] << " " << row[1];
    };
    ASSERT_TRUE(MessageCatalog::MessageCatalogInit(main_));
    expect_answers(2);
    add({addon_ + u"//", text(u"third"), addon_});
    add({main_, addon_});
    EXPECT_EQ("main/app/de/text", answer("de_CH")) << "a loaded catalog stays until it is flushed";
    MessageCatalog::FlushCatalogFromCache(CatalogID("app:text"));
    expect_answers(3);
    remove_root(addon_);
    expect_answers(4);
    std::filesystem::remove_all(root() / "main");
    remove_root(main_); // which is there from the start as well, so that nothing is looked at on the disk
    EXPECT_EQ(2U, count());
}

TEST_F(MessageCatalogLocations, StayWhenTheirRemovalFails) {
    ASSERT_TRUE(MessageCatalog::MessageCatalogInit(main_));
    add({addon_});
    file("addon/resources/no_component.xml");
    for (auto const& [name, reason] :
         fl::testing::rows<2>("app/en/bad-name.xml Bad  app/en/n\u00e4me.xml ~  german/de/x ~")) {
        std::filesystem::path const bad = file("addon/resources/" + name);
        auto const told = failure<MessageCatalog::ResPathRemovalUnknownError>(remove_root, addon_);
        EXPECT_TRUE(told.starts_with("Unknown error while removal of path! Error : " + reason)) << told;
        std::filesystem::remove(bad);
    }
    std::filesystem::rename(root() / "addon", root() / "gone");
    EXPECT_EQ("Resource directory not found on the path!",
              failure<MessageCatalog::ResDirNotPresent>(remove_root, addon_));
    EXPECT_EQ(2U, count());
    std::filesystem::rename(root() / "gone", root() / "addon");
    std::filesystem::create_directories(root() / "addon/resources/german/en");
    std::filesystem::create_directory_symlink("..", root() / "addon/resources/app/en/loop");
    remove_root(addon_);
    EXPECT_EQ(1U, count());
}

// ThreadSanitizer judges, so do the texts.
TEST_F(MessageCatalogLocations, ComeAndGoWhileOthersLookUp) {
    fl::testing::run_in_threads(6, [this](int number) {
        MessageCatalog::MessageCatalogInit(main_);
        for (int round = 0; round < 40; ++round) {
            if (number == 0) {
                add({addon_});
                remove_root(addon_);
            } else if (number == 1) {
                EXPECT_EQ(2U, getMessageIdCompletions(u"app:text:").completions.size());
                MessageCatalog::FlushCatalogFromCache(CatalogID("app:text"));
            } else {
                EXPECT_EQ("main/app/en/text", answer("en_US"));
                EXPECT_NE("none", answer("de_CH"));
                answer("en_US", "extra:sub:deep:leaf");
            }
        }
    });
}
