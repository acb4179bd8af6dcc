// The figures that must hold, collected by each program of a run and shown in one table.
#pragma once

#include <string>
#include <vector>

namespace bench {

enum class Wanted { Below, AtLeast, Nothing };

/// Notes a figure; the last one of a name counts.
void figure(const std::string &name, double value, const std::string &unit,
            Wanted wanted = Wanted::Nothing, double target = 0);

/// Appends them to the file that TORVENA_BENCH_FIGURES names, or prints them: name, value, unit,
/// target and verdict, separated by tabs.
void writeFigures();

/// The smallest value that so many percent of the samples do not exceed. Not of an empty list.
double percentile(std::vector<double> samples, double percent);

} // namespace bench
