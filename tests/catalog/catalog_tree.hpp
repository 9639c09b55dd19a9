/// Catalogs below some roots, and what the registry answers from them. It is process-wide and set once, so
/// each test takes a process of its own.
#pragma once

#include "support/temp_tree.hpp"

#include <fl/i18n/locale.hpp>
#include <fl/i18n/message_catalog_impl.hpp>

#include <gtest/gtest.h>

namespace fl::testing {

/// "main" and "addon" share some catalogs; "bare" has no resources.
struct catalog_tree : ::testing::Test, temp_tree {
    catalog_tree() {
        for (char const* const name : {"app/en/text", "app/de/text"})
            write("main", name, std::string("main/") + name);
        for (char const* const name : {"app/en/text", "app/de/text", "app/de_CH/text", "app/fr/text",
                                       "app/en/second", "app/de/only_german", "extra/en/sub/deep/leaf"})
            write("addon", name, std::string("addon/") + name);
        write("third", "app/en/third", "third/app/en/third");
        file("bare/file");
    }

    /// A catalog with the messages "k" and, with a hole at its end, "hole".
    void write(std::string const& root, std::string const& name, std::string const& text) const {
        std::string const entries =
            "<entry key='k'>" + text + "</entry><entry key='hole'>" + text + " {0}</entry>";
        file(root + "/resources/" + name + ".xml", "<rsccat><message>" + entries + "</message></rsccat>");
    }

    static std::shared_ptr<i18n::MessageCatalog> get(char const* locale, std::string const& id = "app:text") {
        return i18n::MessageCatalog::GetMessageCatalog(i18n::CatalogID(id),
                                                       *i18n::QnLocale::createLocale(locale));
    }

    /// The message "k", which tells where the catalog lies; "none" if the load fails.
    static std::string answer(char const* locale, std::string const& id = "app:text") try {
        ustring const text = get(locale, id)->get_message_for_key("k");
        return {text.begin(), text.end()};
    } catch (i18n::MessageCatalog::MessageCatalogLoadFailed const&) {
        return "none";
    }

    ustring const main_ = text(u"main"), addon_ = text(u"addon"), bare_ = text(u"bare");
};

} // namespace fl::testing
