/// @file
/// Everything of `fl::filesystem`. Each family has a header of its own below <fl/filesystem/>, to include
/// alone where compile time counts. From the bottom of the library upwards:
///
/// - paths as text: path.hpp; what the disk says about them: file_status.hpp; what goes wrong: exceptions.hpp
/// - opening files: file.hpp, temporary ones: temporary.hpp; setting their time: last_write_time.hpp
/// - names in bytes: file_name_codecvt.hpp; Boost's paths as text: boost_path.hpp
/// - the rules of a volume for names: path_compare.hpp, path_validation.hpp
/// - where the library is installed: install_path.hpp
/// - what is in a directory: directory_iterator.hpp, in a tree: recursive_directory_iterator.hpp; an entry of
///   it: directory_entry.hpp; wildcards: directory_pattern.hpp
#pragma once

#include <fl/filesystem/boost_path.hpp>
#include <fl/filesystem/directory_entry.hpp>
#include <fl/filesystem/directory_iterator.hpp>
#include <fl/filesystem/directory_pattern.hpp>
#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/file.hpp>
#include <fl/filesystem/file_name_codecvt.hpp>
#include <fl/filesystem/file_status.hpp>
#include <fl/filesystem/install_path.hpp>
#include <fl/filesystem/last_write_time.hpp>
#include <fl/filesystem/path.hpp>
#include <fl/filesystem/path_compare.hpp>
#include <fl/filesystem/path_validation.hpp>
#include <fl/filesystem/recursive_directory_iterator.hpp>
#include <fl/filesystem/temporary.hpp>
