#include "catalog_bench.hpp"

#include "allocations.hpp"
#include "comparison.hpp"
#include "display_names.hpp"

#include <fl/i18n.hpp>

#include <expat.h>

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <libintl.h>
#include <memory>
#include <stdexcept>

namespace bench {

namespace {

namespace fs = std::filesystem;
using namespace fl::i18n;

constexpr std::size_t large_catalog_size = 10'000;

/// The files of the benchmarks, removed at the end.
class workspace {
public:
    workspace() {
        std::string name = (fs::temp_directory_path() / "fl_i18n_bench_XXXXXX").string();
        if (!mkdtemp(name.data()))
            throw std::runtime_error("cannot make a directory");
        root_ = name;
    }
    ~workspace() {
        std::error_code ignored;
        fs::remove_all(root_, ignored);
    }
    workspace(workspace const&) = delete;
    workspace& operator=(workspace const&) = delete;

    fs::path file(std::string const& name, std::string const& content) const {
        fs::path const path = root_ / name;
        fs::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << content;
        return path;
    }
    fs::path const& root() const { return root_; }

private:
    fs::path root_;
};

workspace const& files() {
    static workspace const instance;
    return instance;
}

std::string catalog_xml(std::vector<demo::message> const& messages) {
    std::string xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<rsccat version=\"1.0\">\n    <message>\n";
    for (demo::message const& message : messages) {
        xml += "        <entry key=\"" + message.key + "\">";
        for (char const c : ustring_to_utf8(message.text))
            c == '&' ? xml.append("&amp;") : xml.append(1, c);
        xml += "</entry>\n";
    }
    return xml + "    </message>\n</rsccat>\n";
}

// Look-up
// ------------------------------------------------------------------------------------------------------

/// The country names in English under their codes, as a gettext domain. msgfmt adds the hash table.
void write_gettext_domain(std::vector<demo::message> const& messages) {
    std::string po = "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n";
    for (demo::message const& message : messages)
        po += "\nmsgid \"" + message.key + "\"\nmsgstr \"" + ustring_to_utf8(message.text) + "\"\n";
    fs::path const source = files().file("countries.po", po);
    fs::path const target = files().file("locale/en/LC_MESSAGES/countries.mo", "");
    std::string const command = "msgfmt -o '" + target.string() + "' '" + source.string() + "'";
    if (std::system(command.c_str()) != 0)
        throw std::runtime_error("msgfmt (package gettext) does not work");
    setenv("LANGUAGE", "en", 1);
    // Any locale but "C" lets gettext translate.
    if (!std::setlocale(LC_ALL, "C.UTF-8") && !std::setlocale(LC_ALL, "en_US.UTF-8"))
        throw std::runtime_error("there is no locale for gettext");
    bindtextdomain("countries", (files().root() / "locale").c_str());
    bind_textdomain_codeset("countries", "UTF-8");
}

void register_look_up() {
    static std::vector<demo::message> const countries = demo::country_names("en");
    files().file("resources/names/en/countries.xml", catalog_xml(countries));
    MessageCatalog::MessageCatalogInit(files().root().u16string());
    write_gettext_domain(countries);
    static std::vector<MessageID> ids;
    for (demo::message const& message : countries) {
        ids.emplace_back("names:countries:" + message.key);
        if (MessageCatalog::get_message(ids.back()) != message.text ||
            utf8_to_ustring(dgettext("countries", message.key.c_str())) != message.text)
            throw std::runtime_error("the two catalogs differ at " + message.key);
    }
    compare(
        "look_up/warm", 1.0,
        [](benchmark::State& state) {
            std::size_t const before = allocation_count();
            std::size_t place = 0;
            for (auto _ : state) {
                benchmark::DoNotOptimize(MessageCatalog::get_message(ids[place]));
                place = place + 1 == ids.size() ? 0 : place + 1;
            }
            state.counters["allocs"] = benchmark::Counter(static_cast<double>(allocation_count() - before),
                                                          benchmark::Counter::kAvgIterations);
        },
        "dgettext_and_utf16",
        [](benchmark::State& state) {
            std::size_t place = 0;
            for (auto _ : state) {
                benchmark::DoNotOptimize(
                    utf8_to_ustring(dgettext("countries", countries[place].key.c_str())));
                place = place + 1 == countries.size() ? 0 : place + 1;
            }
        });
}

// Loading
// ------------------------------------------------------------------------------------------------------

/// Ten thousand messages from real texts: in each language, a country and a language name joined by a dash.
std::vector<demo::message> large_catalog() {
    std::vector<demo::message> result;
    for (demo::translation const& where : demo::translations()) {
        std::vector<demo::message> const languages = demo::language_names(where.directory);
        std::size_t number = 0;
        for (demo::message const& country : demo::country_names(where.directory)) {
            demo::message const& language = languages[number++ * 7 % languages.size()];
            std::string key =
                std::string("label_") + where.directory + "_" + country.key + "_" + language.key;
            result.push_back({std::move(key), country.text + u" \u2013 " + language.text});
            if (result.size() == large_catalog_size)
                return result;
        }
    }
    throw std::runtime_error("there are too few names");
}

void ignore_start(void*, char const*, char const**) {}
void ignore_end(void*, char const*) {}
void ignore_text(void*, char const*, int) {}

void parse_bare(std::string const& xml) {
    std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> const parser(XML_ParserCreate("UTF-8"),
                                                                              XML_ParserFree);
    XML_SetElementHandler(parser.get(), ignore_start, ignore_end);
    XML_SetCharacterDataHandler(parser.get(), ignore_text);
    if (XML_Parse(parser.get(), xml.data(), static_cast<int>(xml.size()), XML_TRUE) != XML_STATUS_OK)
        throw std::runtime_error("the catalog is not well-formed");
}

void remark_memory(fl::filesystem::upath const& path, std::vector<demo::message> const& messages) {
    std::size_t const before = heap_bytes();
    MessageCatalogImpl const catalog("bench:large", path, "en");
    std::size_t const used = heap_bytes() - before;
    std::size_t payload = 0;
    for (demo::message const& message : messages)
        payload += message.key.size() + message.text.size() * sizeof(char16_t);
    remark("memory: " + std::to_string(used / messages.size()) +
           " bytes per message in a loaded catalog of " + std::to_string(messages.size()) +
           "; keys and texts alone: " + std::to_string(payload / messages.size()));
}

void register_load() {
    std::vector<demo::message> const messages = large_catalog();
    static std::string const xml = catalog_xml(messages);
    static fl::filesystem::upath const path(files().file("large.xml", xml).u16string());
    compare(
        "load/10000_messages", 2.2,
        [](benchmark::State& state) {
            for (auto _ : state) {
                auto loaded = std::make_unique<MessageCatalogImpl>("bench:large", path, "en");
                state.PauseTiming(); // giving the catalog back is no part of its load
                loaded.reset();
                state.ResumeTiming();
            }
        },
        "bare_expat",
        [](benchmark::State& state) {
            for (auto _ : state)
                parse_bare(xml);
        });
    remark_memory(path, messages);
}

} // namespace

void register_catalog_benchmarks() {
    register_look_up();
    register_load();
}

} // namespace bench
