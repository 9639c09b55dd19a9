/// @file
/// Everything of `fl::filesystem`. Each family has a header of its own below <fl/filesystem/>, to include alone
/// where compile time counts:
///
/// - paths as text: path.hpp; what the disk says about them: file_status.hpp
/// - opening files: file.hpp; names and bytes: codecvt.hpp
/// - where the library is installed: install_path.hpp
#pragma once

#include <fl/filesystem/boost_path.hpp>
#include <fl/filesystem/codecvt.hpp>
#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/file.hpp>
#include <fl/filesystem/file_status.hpp>
#include <fl/filesystem/install_path.hpp>
#include <fl/filesystem/path.hpp>
