/// @file
/// Setting the time of last modification; reading it is the matter of <fl/filesystem/file_status.hpp>.
///
///     last_write_time(u"copy.txt", status(u"original.txt").modification_time);
///
/// The name is put in native form (`detail::make_native_form`) and goes to the system as UTF-8. Both
/// functions may be called from any thread.
#pragma once

#include <fl/filesystem/path.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <boost/date_time/posix_time/ptime.hpp>

namespace fl::filesystem {

/// Sets the time of last modification (UTC, to the microsecond); the time of access stays.
///
/// Throws `InvalidArgument` for an empty path ("Empty Path not permitted") and for not-a-date-time ("Time is
/// not a ptime"), the exceptions of `detail::make_native_access_form`, and the class of the system's `errno`
/// value, which is `SystemError` for an infinite time. An exception of the system comes without the name.
FL_I18N_EXPORT void last_write_time(ustring const& name, boost::posix_time::ptime const& time);
FL_I18N_EXPORT void last_write_time(upath const& path, boost::posix_time::ptime const& time);

} // namespace fl::filesystem
