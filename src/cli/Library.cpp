#include "cli/Library.h"

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <optional>
#include <set>
#include <system_error>
#include <thread>

#include "cli/CheckFiles.h"

namespace tessaryn {

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> ProofsIn(const std::string& directory) {
    std::vector<fs::path> files;
    std::error_code error;
    const auto options = fs::directory_options::skip_permission_denied;
    for (fs::recursive_directory_iterator at(directory, options, error), end; !error && at != end;
         at.increment(error)) {
        if (at->path().extension() == ".proof") files.push_back(at->path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

// Each file once, on so many threads.
std::vector<std::optional<check::CheckedProof>> CheckAll(const std::vector<fs::path>& files,
                                                         int jobs) {
    std::vector<std::optional<check::CheckedProof>> proofs(files.size());
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        for (std::size_t i = next++; i < files.size(); i = next++) {
            proofs[i] = CheckFile(files[i].string());
        }
    };
    std::vector<std::thread> threads;
    try {
        for (int job = 1; job < jobs; ++job) threads.emplace_back(work);
    } catch (const std::system_error&) {  // no more of them to be had
    }
    work();
    for (std::thread& thread : threads) thread.join();
    return proofs;
}

Basis::Kind KindOf(const check::Ground& ground) {
    switch (ground.kind) {
        case check::Ground::Kind::Premise:
            return Basis::Kind::Premise;
        case check::Ground::Kind::Created:
            return Basis::Kind::Axiom;
        case check::Ground::Kind::Menu:
            return Basis::Kind::Menu;
        case check::Ground::Kind::Witness:
            break;
    }
    return Basis::Kind::Witness;
}

// What is no theorem of the library rests on itself.
Basis BasisOfItsOwn(const check::Ground& ground, bool isOwn, const std::string& ofFile) {
    const bool isMenu = ground.kind == check::Ground::Kind::Menu;
    const std::string text = ground.text + (ground.about != 0 ? ofFile : "");
    const std::string worded = isMenu ? text : isOwn ? Worded(ground) : "axiom " + text;
    return {KindOf(ground), isOwn ? ground.line : 0, text, worded, isOwn ? ground.about : 0};
}

}  // namespace

const char* KindName(Basis::Kind kind) {
    static const char* const names[] = {"premise", "axiom", "menu", "witness", "theorem"};
    return names[static_cast<int>(kind)];
}

Library::Library(const std::string& directory, int jobs) {
    const std::vector<fs::path> files = ProofsIn(directory);
    const auto proofs = CheckAll(files, jobs);
    for (std::size_t i = 0; i < files.size(); ++i) {
        const std::string name = files[i].lexically_relative(directory).string();
        if (!proofs[i] || proofs[i]->verdict != check::Verdict::Accepted) {
            faults_.push_back(files[i].string() + ": " +
                              (proofs[i] ? Summary(*proofs[i]) : "the file can't be read"));
            continue;
        }
        const int last = proofs[i]->Count();
        if (last == 0) continue;
        const std::string key = proofs[i]->Key(last);
        std::vector<Use> uses = UsesOf(*proofs[i], last);
        // A theorem stands without a premise, says nothing of a witness, and is no axiom of its
        // own.
        const bool isTheorem = std::none_of(uses.begin(), uses.end(), [&](const Use& use) {
            return use.ground.kind == check::Ground::Kind::Premise ||
                   use.ground.kind == check::Ground::Kind::Witness || use.key == key;
        });
        if (!isTheorem) continue;
        byStatement_.emplace(key, theorems_.size());
        theorems_.push_back({name, *proofs[i]});
        uses_.push_back(std::move(uses));
    }
}

std::vector<Library::Use> Library::UsesOf(const check::CheckedProof& proof, int line) {
    std::vector<Use> uses;
    for (check::Ground& ground : proof.RestsOn(line)) {
        const bool isCreated = ground.kind == check::Ground::Kind::Created;
        uses.push_back({std::move(ground), ""});
        if (isCreated) uses.back().key = proof.Key(uses.back().ground.line);
    }
    return uses;
}

// From a line through the theorems that it uses to all that these rest on.
struct Library::Walk {
    std::vector<Basis> bases;
    std::set<std::pair<Basis::Kind, std::string>> told;
    std::vector<std::size_t> path;  // theorems that are being followed, each used by the one ahead
    std::set<std::size_t> followed;
    std::string circle;
};

void Library::Follow(const std::vector<Use>& uses, Walk& walk) const {
    const auto tell = [&walk](Basis basis) {
        if (walk.told.emplace(basis.kind, basis.text).second) {
            walk.bases.push_back(std::move(basis));
        }
    };
    const bool isOwn = walk.path.empty();
    const std::string ofFile = isOwn ? "" : " of " + theorems_[walk.path.back()].file;
    for (const auto& [ground, key] : uses) {
        const auto known = key.empty() ? byStatement_.end() : byStatement_.find(key);
        if (known == byStatement_.end()) {
            tell(BasisOfItsOwn(ground, isOwn, ofFile));
            continue;
        }
        const std::size_t number = known->second;
        const std::string& file = theorems_[number].file;
        tell({Basis::Kind::Theorem, isOwn ? ground.line : 0, file, "theorem " + file});
        const auto loop = std::find(walk.path.begin(), walk.path.end(), number);
        for (auto at = loop; at != walk.path.end(); ++at) {
            walk.circle += (at == loop ? "" : ", ") + theorems_[*at].file;
        }
        if (!walk.circle.empty()) return;
        if (!walk.followed.insert(number).second) continue;
        walk.path.push_back(number);
        Follow(uses_[number], walk);
        walk.path.pop_back();
        if (!walk.circle.empty()) return;
    }
}

std::vector<Basis> Library::BasesOf(const check::CheckedProof& proof, int line,
                                    std::string& circle) const {
    Walk walk;
    Follow(UsesOf(proof, line), walk);
    circle = walk.circle;
    return walk.bases;
}

}  // namespace tessaryn
