/// @file
/// Everything of `fl::i18n`. Each family has a header of its own below <fl/i18n/>, to include alone where
/// compile time counts. From the bottom of the library upwards:
///
/// Text: ustring.hpp
/// - classes of characters: character_class.hpp; the next one of a class, the next code point: scan.hpp;
///   UTF-32: code_points.hpp
/// - case, normal forms, diacritics: transform.hpp; case by the rules of a locale: locale_case.hpp
/// - compare.hpp, find.hpp, trim.hpp, cstring.hpp; what they throw: ctype_exceptions.hpp
/// - regular expressions: pattern_match.hpp, without results: simple_pattern_match.hpp; how they treat case
///   and normal forms: character_handling_mode.hpp; what they throw: regex_exceptions.hpp,
///   natural_sort_exceptions.hpp
///
/// Locales
/// - locales and the global one: locale.hpp; the object behind them: locale_impl.hpp; the locales that are
///   tried in turn: locale_fallback.hpp; what they throw: locale_exceptions.hpp
/// - locale names as text: locale_name.hpp; names of encodings: encoding_name.hpp
/// - what is known of locales: locale_database.hpp, language_context.hpp, locale_tables.hpp; corrections to
///   it: lc_data.hpp, as XML: lc_data_xml.hpp; what that throws: lc_data_exceptions.hpp
/// - the process: locale_context.hpp, lc_status.hpp; `char16_t` streams: std_locale.hpp
///
/// Text and bytes
/// - string_conversion.hpp; a named encoding: codecvt.hpp, one of few: codecvt_ascii.hpp, codecvt_java.hpp,
///   codecvt_wide.hpp; text in pieces: stream_codecvt.hpp; an unknown encoding: charset_detection.hpp
/// - what conversions have in common: converter.hpp, conversion_step.hpp; an ICU converter of one's own:
///   cvt_ctx.hpp; what they throw: cvt_exceptions.hpp
/// - environment variables: environment.hpp
///
/// Times: as text date_time.hpp, in time zones time_zone.hpp
///
/// Start-up
/// - start-up and changes of the global locale: startup.hpp; what came of it: locale_status.hpp
/// - how the user's locale is found: locale_discovery.hpp, discovery_record.hpp; for a Java VM:
///   java_vm_context.hpp
///
/// Messages
/// - message_catalog.hpp; what it throws: message_catalog_exceptions.hpp; identifiers: catalog_id.hpp,
///   as plain records: idbase.hpp
/// - one loaded catalog: message_catalog_impl.hpp; its file: catalog_xml.hpp, the folding of its lines:
///   catalog_text_processor.hpp; any XML file: expat_loader.hpp
/// - the file of a resource for a locale: resource_finder.hpp
/// - identifiers completed as they are typed: message_id_completion.hpp; the index behind it:
///   catalog_map_xml.hpp
///
/// What is exported is marked by export.hpp.
#pragma once

#include <fl/i18n/catalog_id.hpp>
#include <fl/i18n/catalog_map_xml.hpp>
#include <fl/i18n/catalog_text_processor.hpp>
#include <fl/i18n/catalog_xml.hpp>
#include <fl/i18n/character_class.hpp>
#include <fl/i18n/character_handling_mode.hpp>
#include <fl/i18n/charset_detection.hpp>
#include <fl/i18n/code_points.hpp>
#include <fl/i18n/codecvt.hpp>
#include <fl/i18n/codecvt_ascii.hpp>
#include <fl/i18n/codecvt_java.hpp>
#include <fl/i18n/codecvt_wide.hpp>
#include <fl/i18n/compare.hpp>
#include <fl/i18n/conversion_step.hpp>
#include <fl/i18n/converter.hpp>
#include <fl/i18n/cstring.hpp>
#include <fl/i18n/ctype_exceptions.hpp>
#include <fl/i18n/cvt_ctx.hpp>
#include <fl/i18n/cvt_exceptions.hpp>
#include <fl/i18n/date_time.hpp>
#include <fl/i18n/discovery_record.hpp>
#include <fl/i18n/encoding_name.hpp>
#include <fl/i18n/environment.hpp>
#include <fl/i18n/expat_loader.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/find.hpp>
#include <fl/i18n/idbase.hpp>
#include <fl/i18n/java_vm_context.hpp>
#include <fl/i18n/language_context.hpp>
#include <fl/i18n/lc_data.hpp>
#include <fl/i18n/lc_data_exceptions.hpp>
#include <fl/i18n/lc_data_xml.hpp>
#include <fl/i18n/lc_status.hpp>
#include <fl/i18n/locale.hpp>
#include <fl/i18n/locale_case.hpp>
#include <fl/i18n/locale_context.hpp>
#include <fl/i18n/locale_database.hpp>
#include <fl/i18n/locale_discovery.hpp>
#include <fl/i18n/locale_exceptions.hpp>
#include <fl/i18n/locale_fallback.hpp>
#include <fl/i18n/locale_impl.hpp>
#include <fl/i18n/locale_name.hpp>
#include <fl/i18n/locale_status.hpp>
#include <fl/i18n/locale_tables.hpp>
#include <fl/i18n/message_catalog.hpp>
#include <fl/i18n/message_catalog_exceptions.hpp>
#include <fl/i18n/message_catalog_impl.hpp>
#include <fl/i18n/message_id_completion.hpp>
#include <fl/i18n/natural_sort_exceptions.hpp>
#include <fl/i18n/pattern_match.hpp>
#include <fl/i18n/regex_exceptions.hpp>
#include <fl/i18n/resource_finder.hpp>
#include <fl/i18n/scan.hpp>
#include <fl/i18n/simple_pattern_match.hpp>
#include <fl/i18n/startup.hpp>
#include <fl/i18n/std_locale.hpp>
#include <fl/i18n/stream_codecvt.hpp>
#include <fl/i18n/string_conversion.hpp>
#include <fl/i18n/time_zone.hpp>
#include <fl/i18n/transform.hpp>
#include <fl/i18n/trim.hpp>
#include <fl/i18n/ustring.hpp>
