#include "figures.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace bench {

namespace {

struct Figure {
    std::string name;
    double value;
    std::string unit;
    Wanted wanted;
    double target;

    bool reached() const { return wanted == Wanted::Below ? value < target : value >= target; }
};

std::vector<Figure> &all() {
    static std::vector<Figure> figures;
    return figures;
}

} // namespace

void figure(const std::string &name, double value, const std::string &unit, Wanted wanted,
            double target) {
    const auto known = std::find_if(all().begin(), all().end(),
                                    [&](const Figure &figure) { return figure.name == name; });
    const Figure noted{name, value, unit, wanted, target};
    if (known == all().end())
        all().push_back(noted);
    else
        *known = noted;
}

void writeFigures() {
    const char *path = std::getenv("TORVENA_BENCH_FIGURES");
    std::FILE *file = path ? std::fopen(path, "a") : stdout;
    if (!file)
        return;
    for (const Figure &figure : all()) {
        std::fprintf(file, "%s\t%.4g\t%s\t", figure.name.c_str(), figure.value,
                     figure.unit.c_str());
        if (figure.wanted == Wanted::Nothing)
            std::fputs("-\t-\n", file);
        else
            std::fprintf(file, "%s %g\t%s\n",
                         figure.wanted == Wanted::Below ? "<" : ">=", figure.target,
                         figure.reached() ? "ok" : "MISSED");
    }
    if (path)
        std::fclose(file);
}

double percentile(std::vector<double> samples, double percent) {
    std::sort(samples.begin(), samples.end());
    const double rank = std::ceil(percent / 100 * static_cast<double>(samples.size()));
    return samples[static_cast<std::size_t>(std::max(rank, 1.0)) - 1];
}

} // namespace bench
