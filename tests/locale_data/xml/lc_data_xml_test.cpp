#include "locale_data/database/changes.hpp"
#include "locale_runtime/context/context_state.hpp"
#include "support/failure.hpp"
#include "support/raise.hpp"
#include "support/rows.hpp"
#include "support/temp_tree.hpp"

#include <fl/i18n/lc_data_xml.hpp>

#include <expat.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

static bool no_parser = false;

// Takes the place of expat's own, for want of another way to make it fail.
XML_Parser XML_ParserCreate(XML_Char const* encoding) {
    return no_parser ? nullptr : XML_ParserCreate_MM(encoding, nullptr, nullptr);
}

using namespace fl::i18n::lcmgmt;
using namespace std::string_literals;
using fl::filesystem::native_path;
using fl::testing::failure;

struct throwing_handler : LcdbEventHandler {
    using LcdbEventHandler::LcdbEventHandler;
    int startEntry(char const*, char const**) override { fl::support::raise(std::range_error("mine")); }
};

struct LcDataXmlTest : testing::Test, fl::testing::temp_tree {
    native_path write(std::string const& document) const {
        return native_path(file("x.xml", document).string());
    }

    /// The expat error of the failure, 0 for success.
    int load(std::string const& document, locale_database* database = nullptr) {
        try {
            parseLcData(database ? *database : database_, write(document));
            return 0;
        } catch (LcRscInvalidXmlDoc const& e) {
            message_ = e.message();
            return std::stoi(message_.substr(message_.find("with ") + 5));
        }
    }

    /// What went to the event log since the last call, an entry each line.
    std::string log() {
        std::string lines;
        auto const all = get_context_state().log.entries();
        for (; logged_ < all.size(); ++logged_)
            lines += all[logged_] + "\n";
        return lines;
    }

    locale_database database_;
    std::string message_;
    std::size_t logged_ = get_context_state().log.entries().size();
};

TEST_F(LcDataXmlTest, AppliesEachElement) {
    EXPECT_EQ(0, load(R"(<?xml version="1.0" encoding="utf-8"?><lcdata a="b">ignored
        <locale name="xx" encoding="" xpg_name="X"> text <alias name="x1"/>&amp;<alias name="x2"/></locale>
        <locale name="he_IL" encoding="windows-1255" disable_user_locale="1"/>
        <locale name="he_IL"><region_alias name="IL"/><l10n disable="yes"/></locale>
        <locale name="qq"/><locale name="de_DE" encoding="ISO-8859-15"/>
        <codeset><encoding name="UTF8" jvm_encoding="UTF8"/><encoding name="never"/>
            <encoding name="Sjis" jvm_encoding="X" compat="Y"><encoding_alias name="ja"/></encoding></codeset>
        <codeset><encoding name="Big5" compat="Y"/></codeset></lcdata>)"));
    for (auto const& [name, canonical, encoding, xpg_name] : fl::testing::rows<4>(R"(
        x1 xx UTF-8 X  x2 xx UTF-8 X  qq ~ UTF-8 (null)  iw he_IL windows-1255 he_IL.UTF-8
        de de_DE ISO-8859-1 de_DE.ISO8859-1)")) // the language data has the other encoding
        EXPECT_EQ(ask_locale(database_, name.c_str()), canonical + ' ' + encoding + ' ' + xpg_name) << name;
    EXPECT_EQ(database_.get_region_locale_name("il"), "he_IL");
    EXPECT_EQ(database_.get_optional_data_context("he_IL", "disable_l10n").value, "yes");
    EXPECT_EQ(database_.get_optional_data_context("he_IL", "disable_user_locale").value, "");
    for (auto const& [name, standard, jvm, compatible] : fl::testing::rows<4>(R"(
        UTF-8 UTF-8 UTF8 (null)  sjis Shift_JIS X Y  ja Shift_JIS X (null)
        big5 Big5 MS950 Y  never (null) (null) (null))"))
        EXPECT_EQ(ask_encoding(database_, name.c_str()), standard + ' ' + jvm + ' ' + compatible) << name;
    EXPECT_EQ(log(), "");
}

TEST_F(LcDataXmlTest, FailedStepsGoToTheLog) {
    EXPECT_EQ(0, load(R"(<lcdata><locale name="he_IL"><alias name="he_IL"/></locale>
        <locale name="xx_YY"><l10n disable="1"/><alias name="after"/></locale></lcdata>)"));
    EXPECT_EQ(database_.get_locale_name("after"), "xx_YY");
    LcData data(database_);
    data.addLcName("", "a", "b");
    data.addRegionAliasLcName("a", "");
    data.addEncodingName("", "a", "b");
    data.addEncodingAlias("a", "");
    EXPECT_EQ(log(), "LcData::addAliasLcName::modifyLcAliasName - he_IL:he_IL1\n"
                     "LcData::addL10nFlag::modifyLcOptData - xx_YY:disable_l10n:14\n"
                     "LcData::addLcName::modifyLcEntry - :a:b2\n"
                     "LcData::addRegionAliasLcName::modifyLcAliasName - a:2\n"
                     "LcData::addEncodingName::modifyEncodingDataEntry - :a:b2\n"
                     "LcData::addEncodingAlias::modifyEncodingAlias - a:2\n");
}

TEST(LcData, AsksAboutNames) {
    EXPECT_EQ(LcData::extract_short_name("de_AT.UTF-8@euro"), "de_AT");
    EXPECT_EQ(LcData::getEncodingFromAlias("sjis") + LcData::getEncodingFromAlias("no-such"),
              "Shift_JISno-such");
    EXPECT_EQ(LcData::getQnStandardEncodingName("sjis") + LcData::getQnStandardEncodingName("no-such"),
              "Shift_JIS");
    EXPECT_TRUE(LcData::checkEncoding("sjis") && !LcData::checkEncoding("no-such"));
}

TEST_F(LcDataXmlTest, StructureOfDocuments) {
    auto const before = dump(database_);
    for (char const* accepted :
         {"<codeset><encoding name='a'/></codeset>", "\xEF\xBB\xBF<lcdata/>",
          "<?xml version='1.0' encoding='Utf-8'?><lcdata x='1'><!-- <x/> --><?x y?><![CDATA[<x/>]]></lcdata>",
          "<lcdata><locale name='ja_JP' encoding='Shift_JIS'/><locale name='xx_YY'/></lcdata>"})
        EXPECT_EQ(load(accepted), 0) << accepted;
    for (char const* refused :
         {"", "<LCDATA/>", "<x:lcdata xmlns:x='y'/>", "<lcdata>\xE4</lcdata>", "<lcdata><x/></lcdata>",
          "<?xml version='1.0'?><lcdata/>", "<?xml version='1.0' encoding='ISO-8859-1'?><lcdata/>",
          "<lcdata><locale name=''/></lcdata>", "<locale name='a'><l10n name='b'/></locale>",
          "<locale name='a'><locale name='b'/></locale>", // the inner end tag has closed the outer element
          "<locale name='a'><encoding_alias name='b'/></locale>",
          "<codeset><encoding compat='a'/></codeset>"})
        EXPECT_NE(load(refused), 0) << refused;
    EXPECT_EQ(dump(database_), before);
    EXPECT_EQ(load("<lcdata>\n <alias name='a'></alias></lcdata>"), XML_ERROR_ABORTED);
    EXPECT_EQ(message_, "XML Parse error detected with 35 at column, 17, on line, 2 in resource file.");
}

// The file that is installed changes nothing; the example in its comment is one that works.
TEST_F(LcDataXmlTest, TheInstalledFile) {
    auto const before = dump(database_);
    parseLcData(database_, native_path(FL_I18N_LCDATA_FILE));
    EXPECT_EQ(dump(database_), before);
    std::ostringstream installed;
    installed << std::ifstream(FL_I18N_LCDATA_FILE).rdbuf();
    std::string const example = installed.str().substr(installed.str().find("<locale "));
    EXPECT_EQ(load("<lcdata>" + example.substr(0, example.find("</codeset>")) + "</codeset></lcdata>"), 0);
    EXPECT_EQ(ask_locale(database_, "german") + log(), "de_DE UTF-8 de_DE.UTF-8");
    EXPECT_EQ(ask_encoding(database_, "japanese"), "Shift_JIS Windows-31J (null)");
}

TEST_F(LcDataXmlTest, FilesThatCannotBeReadAndHandlersThatThrow) {
    auto const parse = [&](std::string const& name) { parseLcData(database_, native_path(name)); };
    std::string const here = root().string();
    for (std::string const& name : {here + "/missing", ""s, here + "\0"s})
        EXPECT_EQ(failure<LcRscOpenFileFailure>(parse, name), "fl:i18n:LcRscOpenFileFailure");
    EXPECT_EQ(LcRscOpenFileFailure("/\xC3\xA4 ~\t").message(), "Failed to open file /C3A4 ~9.");
    EXPECT_EQ(failure<LcRscFileReadFailure>(parse, here), "fl:i18n:LcRscFileReadFailure");
    auto const path = write("<lcdata/>");
    no_parser = true;
    EXPECT_EQ(failure<LcRscParserCreationFailure>(parse, path.string()),
              "fl:i18n:LcRscParserCreationFailure");
    no_parser = false;
    throwing_handler handler(database_);
    EXPECT_EQ(failure<std::range_error>([&] { parseXmlDocument(handler, path); }), "mine");
}

// No element undoes another one here, so what a part of the document does is part of what all of it does.
TEST_F(LcDataXmlTest, DamagedDocumentsApplyWhatStandsBeforeTheDamage) {
    std::string const document = R"(<?xml version="1.0" encoding="UTF-8"?>
<lcdata><locale name="aa_BB" encoding="UTF-8" xpg_name="x.U"><alias name="ccc"/></locale>
<locale name="dd_EE" xpg_name="y"><region_alias name="FF"/><l10n disable="1"/></locale>
<codeset><encoding name="g" jvm_encoding="h" compat="i"><encoding_alias name="j"/></encoding></codeset>
</lcdata>)";
    EXPECT_EQ(load(document), 0);
    auto all = dump(database_);
    std::size_t applied = 0;
    int sound = 0;
    for (std::size_t at = 0; at < document.size(); ++at) {
        locale_database truncated;
        EXPECT_NE(load(document.substr(0, at), &truncated), 0) << at;
        auto some = dump(truncated);
        all["pool"] = some["pool"];
        EXPECT_TRUE(std::includes(all.begin(), all.end(), some.begin(), some.end())) << at;
        applied = some.size();
        char const byte = document[at];
        for (std::string const& damage :
             {""s, std::string(2, byte), std::string(1, static_cast<char>(byte ^ 1)),
              std::string(1, static_cast<char>(byte ^ 0x80))}) {
            locale_database damaged;
            sound +=
                load(std::string(document).replace(at, 1, damage), &damaged) == 0; // nothing else is thrown
            EXPECT_EQ(ask_locale(damaged, "C") + ask_locale(damaged, "de") + ask_encoding(damaged, "sjis"),
                      "en_US_POSIX US-ASCII Cde_DE ISO-8859-1 de_DE.ISO8859-1Shift_JIS MS932 (null)")
                << at << damage;
        }
    }
    EXPECT_EQ(applied, all.size());
    EXPECT_TRUE(0 < sound && sound < 500) << sound;
}

/// `count` copies; each "@" in them is the number of the copy, and each "&" a reference to the entity before.
static std::string repeated(std::string const& text, int count) {
    std::string result;
    for (int i = 0; i < count; ++i)
        for (char const c : text)
            result += c == '@' ? std::to_string(i) : c == '&' ? "&e" + std::to_string(i - 1) + ";" : ""s + c;
    return result;
}

// Each of these ends at once; what isn't bounded takes minutes, or the stack, or all memory.
TEST_F(LcDataXmlTest, HostileAndLargeDocuments) {
    std::string const type = "<!DOCTYPE lcdata [<!ENTITY e-1 'x'>", open = "<lcdata><locale name='";
    std::string const megabyte(1 << 20, 'x'), close = "</locale></lcdata>", long_name(8 << 20, 'x');
    std::pair<std::string, int> const rows[] = {
        {type + repeated("<!ENTITY e@ '&'>", 100'000) + "]>" + open + "&e99999;'/></lcdata>",
         XML_ERROR_ABORTED},
        {type + repeated("<!ENTITY e@ '&&&&&&&&&&&&&&&&&&&&'>", 20) + "]>" + open + "&e19;'/>" + close,
         XML_ERROR_AMPLIFICATION_LIMIT_BREACH},
        {"<!DOCTYPE a [<!ENTITY e SYSTEM 'x.xml'>]><lcdata>&e;</lcdata>", 0},
        {type + "<!ATTLIST alias name CDATA '" + megabyte + "'>]>" + open + "a'>" +
             repeated("<alias/>", 100'000) + close,
         XML_ERROR_ABORTED},
        {repeated("<locale name='a'>", 100'000), XML_ERROR_NO_ELEMENTS},
        {open + long_name + "' encoding='UTF-8'/></lcdata>", 0},
        {open + long_name, XML_ERROR_UNCLOSED_TOKEN},
        {open + megabyte + "'>" + repeated("<l10n disable='1'/>", 50'000) + close, XML_ERROR_ABORTED},
        {open + "a'>" + repeated("<alias name='b'/>", 100'000) + close, 0},
        {open + "a\0"s + "'/></lcdata>", XML_ERROR_INVALID_TOKEN}};
    for (auto const& [text, error] : rows)
        EXPECT_EQ(load(text), error) << text.substr(0, 200);
}
