#include "cli/Submissions.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace tessaryn {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t MostFiles = 100;     // in one submission
constexpr std::size_t MostEntries = 5000;  // in its folders

bool IsProofOrScript(const fs::path& path) {
    const std::string ending = EndingOf(path.string());
    return ending == ".proof" || ending == ".script" || ending == ".txt";
}

bool IsHidden(const fs::path& path) {
    return path.filename().string().starts_with('.');
}

Submission OfFile(const fs::path& path) {
    Submission submission = {path.string(), "", {}, ""};
    std::error_code error;
    const fs::file_status status = fs::symlink_status(path, error);
    if (fs::is_symlink(status)) {
        submission.fault = "it is a link to some other place";
    } else if (!fs::is_regular_file(status)) {
        submission.fault = "it is no file";
    } else if (!IsProofOrScript(path)) {
        submission.fault = "its name ends neither in .proof nor in .script";
    } else {
        submission.files = {path.string()};
    }
    return submission;
}

Submission OfFolder(const fs::path& path) {
    Submission submission = {path.string(), "", {}, path.string()};
    std::error_code error;
    std::size_t entries = 0;
    const auto options = fs::directory_options::skip_permission_denied;
    for (fs::recursive_directory_iterator at(path, options, error), end; !error && at != end;
         at.increment(error)) {
        const bool isFile = fs::is_regular_file(at->symlink_status(error));
        if (isFile && IsProofOrScript(*at) && !IsHidden(*at)) {
            submission.files.push_back(at->path().string());
        }
        if (++entries > MostEntries || submission.files.size() > MostFiles) {
            submission.fault = "there are too many files in it";
            submission.files.clear();
            return submission;
        }
    }
    if (submission.files.empty()) submission.fault = "there is no proof and no script in it";
    std::sort(submission.files.begin(), submission.files.end());
    return submission;
}

std::vector<fs::path> EntriesOf(const fs::path& folder) {
    std::vector<fs::path> entries;
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        if (!IsHidden(*at)) entries.push_back(at->path());
    }
    std::sort(entries.begin(), entries.end());
    return entries;
}

}  // namespace

std::string EndingOf(const std::string& path) {
    std::string ending = fs::path(path).extension().string();
    for (char& c : ending) c = static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
    return ending;
}

std::vector<Submission> CollectSubmissions(const std::vector<std::string>& paths,
                                           const std::string& sheet,
                                           std::vector<std::string>& missing) {
    std::vector<Submission> submissions;
    std::error_code error;
    for (const std::string& path : paths) {
        if (!fs::exists(fs::symlink_status(path, error))) {
            missing.push_back(path);
        } else if (!fs::is_directory(path, error)) {
            submissions.push_back(OfFile(path));
        } else {
            for (const fs::path& entry : EntriesOf(path)) {
                if (fs::equivalent(entry, sheet, error)) continue;
                const bool isFolder = fs::is_directory(fs::symlink_status(entry, error));
                submissions.push_back(isFolder ? OfFolder(entry) : OfFile(entry));
                if (paths.size() == 1) {
                    submissions.back().name = entry.filename().string();
                }
            }
        }
    }
    return submissions;
}

}  // namespace tessaryn
