#include "check/Scope.h"

namespace tessaryn::check {

Scope::Use Scope::UseOf(int name) const {
    return static_cast<std::size_t>(name) < uses_.size() ? uses_[static_cast<std::size_t>(name)]
                                                         : Use{};
}

void Scope::Enter(std::span<const int> names, std::span<const char> reds) {
    const int line = Count() + 1;
    inForce_.push_back(1);
    linesInForce_.push_back(line);
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto place = static_cast<std::size_t>(names[i]);
        if (uses_.size() <= place) uses_.resize(place * 2 + 16);
        Use& use = uses_[place];
        if (use.first == 0) use.first = line;
        if (use.firstEver == 0) use.firstEver = line;
        use.everRed = use.everRed || reds[i] != 0;
    }
    names_.insert(names_.end(), names.begin(), names.end());
    reds_.insert(reds_.end(), reds.begin(), reds.end());
    ends_.push_back(names_.size());
}

// Lines go out of force from the last up, so a name whose first use goes has no later one left.
void Scope::Close(int premise) {
    while (!linesInForce_.empty() && linesInForce_.back() >= premise) {
        const int line = linesInForce_.back();
        inForce_[static_cast<std::size_t>(line)] = 0;
        for (const int name : Names(line)) {
            int& first = uses_[static_cast<std::size_t>(name)].first;
            if (first == line) first = 0;
        }
        linesInForce_.pop_back();
    }
    while (!openPremises_.empty() && openPremises_.back() >= premise) openPremises_.pop_back();
    while (!witnesses_.empty() && UseOf(witnesses_.back()).witnessLine >= premise) {
        uses_[static_cast<std::size_t>(witnesses_.back())].witnessLine = 0;
        witnesses_.pop_back();
    }
}

void Scope::OpenPremise() {
    openPremises_.push_back(Count());
    if (firstPremise_ == 0) firstPremise_ = Count();
}

void Scope::BringIn(int witness) {
    uses_[static_cast<std::size_t>(witness)].witnessLine = Count();
    witnesses_.push_back(witness);
}

bool Scope::MayHaveBeenInUse(int name) const {
    const Use use = UseOf(name);
    if (openPremises_.empty()) return use.everRed;
    return use.firstEver != 0 && use.firstEver < openPremises_.back();
}

std::span<const int> Scope::Names(int line) const {
    const std::size_t start = ends_[static_cast<std::size_t>(line) - 1];
    return {names_.data() + start, ends_[static_cast<std::size_t>(line)] - start};
}

std::span<const char> Scope::Reds(int line) const {
    const std::size_t start = ends_[static_cast<std::size_t>(line) - 1];
    return {reds_.data() + start, ends_[static_cast<std::size_t>(line)] - start};
}

}  // namespace tessaryn::check
