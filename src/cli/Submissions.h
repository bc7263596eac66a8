// What was handed in.
#pragma once

#include <string>
#include <vector>

namespace tessaryn {

struct Submission {
    std::string name;
    std::string fault;               // why there is nothing to judge; "" if there is
    std::vector<std::string> files;  // to be judged, by their paths; none if it is at fault
    std::string directory;           // that they lie in; "" if the submission is one file
};

// A file is a submission. Of a folder, each file in it is one, and each folder in it is one with
// all files below. Hidden files and the sheet itself are left out. `missing` gets what isn't there.
std::vector<Submission> CollectSubmissions(const std::vector<std::string>& paths,
                                           const std::string& sheet,
                                           std::vector<std::string>& missing);

std::string EndingOf(const std::string& path);  // ".proof", in small letters

}  // namespace tessaryn
