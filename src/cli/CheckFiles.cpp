#include "cli/CheckFiles.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <ostream>

#include "document/ProofFile.h"
#include "platform/InputFile.h"

namespace tessaryn {

namespace {

using nlohmann::json;

constexpr int Refused = 1;
constexpr int Declined = 2;

json GroundsAsJson(const check::CheckedProof& proof, int line) {
    static const char* const kinds[] = {"premise", "axiom", "menu", "witness"};
    json grounds = json::array();
    for (const check::Ground& ground : proof.RestsOn(line)) {
        grounds.push_back({{"kind", kinds[static_cast<int>(ground.kind)]},
                           {"line", ground.line},
                           {"text", ground.text}});
    }
    return grounds;
}

std::string AsJson(const std::string& file, const check::CheckedProof& proof, bool allLines) {
    static const char* const verdicts[] = {"accepted", "refused", "declined"};
    json report = {{"file", file},
                   {"verdict", verdicts[static_cast<int>(proof.verdict)]},
                   {"line", proof.faultyLine},
                   {"reason", proof.sentence},
                   {"statements", json::array()}};
    const bool accepted = proof.verdict == check::Verdict::Accepted;
    for (int line = 1; accepted && line <= proof.Count(); ++line) {
        if (!allLines && !proof.InForce(line)) continue;
        report["statements"].push_back({{"line", line},
                                        {"text", proof.Text(line)},
                                        {"rule", proof.Annotation(line)},
                                        {"inForce", proof.InForce(line)},
                                        {"restsOn", GroundsAsJson(proof, line)}});
    }
    return report.dump(-1, ' ', false, json::error_handler_t::replace);
}

void PrintLines(const std::string& file, const check::CheckedProof& proof, std::ostream& out) {
    for (int line = 1; line <= proof.Count(); ++line) {
        out << file << ':' << line << ": " << proof.Text(line) << ": "
            << check::WordedGrounds(proof, line) << '\n';
    }
}

int Status(check::Verdict verdict) {
    switch (verdict) {
        case check::Verdict::Accepted:
            return 0;
        case check::Verdict::Refused:
            return Refused;
        case check::Verdict::Declined:
            return Declined;
    }
    return Declined;
}

}  // namespace

std::optional<check::CheckedProof> CheckFile(const std::string& path) {
    InputFile file(path);
    if (!file.Good()) return std::nullopt;
    std::string bytes(static_cast<std::size_t>(std::min(file.Size(), MaxProofFile)), '\0');
    std::size_t length = 0;
    while (length < bytes.size()) {
        const std::size_t count = file.Read(bytes.data() + length, bytes.size() - length);
        if (count == 0) break;
        length += count;
    }
    bytes.resize(length);
    return check::CheckProof(std::move(bytes));
}

int CheckFiles(const CheckRequest& request, std::ostream& out, std::ostream& err) {
    bool refused = false;
    int status = 0;
    for (const std::string& file : request.files) {
        const auto proof = CheckFile(file);
        if (!proof) {
            err << file << ": the file can't be read\n";
            status = Declined;
            continue;
        }
        status = std::max(status, Status(proof->verdict));
        refused = refused || proof->verdict == check::Verdict::Refused;
        if (request.asJson) {
            out << AsJson(file, *proof, request.allLines) << '\n';
            continue;
        }
        out << file << ": " << check::Summary(*proof) << '\n';
        const bool accepted = proof->verdict == check::Verdict::Accepted;
        if (request.allLines && accepted) PrintLines(file, *proof, out);
    }
    return refused ? Refused : status;
}

}  // namespace tessaryn
