// The table of speeds that packaging/speed prints: what | measured | target.
#pragma once

#include <string>
#include <vector>

namespace tessaryn {

// Times of one thing that was done again and again, in milliseconds of this thread's CPU.
class Samples {
  public:
    void Add(double milliseconds) { times_.push_back(milliseconds); }
    // The time that this part of all samples stays within; 0 if there are none.
    double Quantile(double part) const;
    double Median() const { return Quantile(0.5); }
    double Percentile99() const { return Quantile(0.99); }

  private:
    std::vector<double> times_;
};

// Of this thread since its start, in milliseconds.
double CpuTime();

// The most memory that this program has had so far, in megabytes.
double PeakMemory();

// unit: "ms", "MB", "MB/s" and the like. target: what is aimed at, in the same unit; 0: nothing.
void PrintRow(const std::string& what, double measured, const char* unit, double target = 0);

}  // namespace tessaryn
