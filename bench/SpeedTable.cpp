#include "SpeedTable.h"

#include <sys/resource.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>

namespace tessaryn {

double Samples::Quantile(double part) const {
    if (times_.empty()) return 0;
    std::vector<double> sorted = times_;
    std::sort(sorted.begin(), sorted.end());
    const auto place = std::ceil(part * static_cast<double>(sorted.size()));
    return sorted[static_cast<std::size_t>(std::max(place, 1.0)) - 1];
}

double CpuTime() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

double PeakMemory() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

void PrintRow(const std::string& what, double measured, const char* unit, double target) {
    const auto number = [](double value) {
        char text[32];
        std::snprintf(text, sizeof text, "%.*f", value < 10 ? 2 : value < 100 ? 1 : 0, value);
        return std::string(text);
    };
    const std::string aim = target > 0 ? number(target) + " " + unit : "";
    std::printf("%-66s | %8s %-4s | %s\n", what.c_str(), number(measured).c_str(), unit,
                aim.c_str());
    std::fflush(stdout);
}

}  // namespace tessaryn
