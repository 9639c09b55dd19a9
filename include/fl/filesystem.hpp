/// @file
/// Everything of `fl::filesystem`. Each family has a header of its own below <fl/filesystem/>.
#pragma once

#include <fl/filesystem/boost_path.hpp>
#include <fl/filesystem/codecvt.hpp>
#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/file.hpp>
#include <fl/filesystem/file_status.hpp>
#include <fl/filesystem/install_path.hpp>
#include <fl/filesystem/path.hpp>
