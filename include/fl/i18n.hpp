/// @file
/// Everything of `fl::i18n`. Each family has a header of its own below <fl/i18n/>, to include alone where
/// compile time counts:
///
/// - messages: message_catalog.hpp; the file of a resource for a locale: resource_finder.hpp; identifiers
///   completed as they are typed: message_id_completion.hpp
/// - start-up and changes of the global locale: startup.hpp; what came of it: locale_status.hpp
/// - locales: locale.hpp; their names as text: locale_name.hpp; what is known of them: locale_database.hpp
/// - text and bytes: string_conversion.hpp; a named encoding: codecvt.hpp, text in pieces:
///   stream_codecvt.hpp, an unknown encoding: charset_detection.hpp
/// - environment variables: environment.hpp
/// - characters: character_class.hpp, code_points.hpp, scan.hpp
/// - text: transform.hpp, compare.hpp, find.hpp, trim.hpp, cstring.hpp; regular expressions:
///   pattern_match.hpp
/// - times as text: date_time.hpp; in time zones: time_zone.hpp; `char16_t` streams: std_locale.hpp
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
