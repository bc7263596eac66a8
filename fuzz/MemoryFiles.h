// Files that are in memory only, in place of those of the machine: the bodies of platform/Files.h
// and platform/InputFile.h for the fuzz targets.
#pragma once

#include <map>
#include <string>

namespace tessaryn {

inline std::map<std::string, std::string> MemoryFiles;  // content by path

}  // namespace tessaryn
