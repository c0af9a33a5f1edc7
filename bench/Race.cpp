#include "bench/Race.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

using Clock = std::chrono::steady_clock;

double TimeOnce(const Race::Work& work, int repetitions)
{
    const auto start = Clock::now();
    for (int i = 0; i < repetitions; ++i)
        work();
    const std::chrono::duration<double, std::nano> time = Clock::now() - start;
    return time.count() / repetitions;
}

int ChooseRepetitions(const Race::Work& work)
{
    constexpr double leastNanoseconds = 200'000;
    int repetitions = 1;
    while (repetitions < 1'000'000 && TimeOnce(work, repetitions) * repetitions < leastNanoseconds)
        repetitions *= 2;
    return repetitions;
}

double MedianOf(std::vector<double> times)
{
    const auto middle = times.begin() + times.size() / 2;
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

} // namespace

void Race::Add(std::string name, Work work, Work prepare)
{
    m_entries.push_back({std::move(name), std::move(work), std::move(prepare), 1, {}});
}

void Race::Run(int rounds)
{
    for (Entry& entry : m_entries) {
        entry.prepare();
        entry.repetitions = ChooseRepetitions(entry.work);
    }
    for (int round = 0; round < rounds; ++round) {
        for (Entry& entry : m_entries) {
            entry.prepare();
            entry.times.push_back(TimeOnce(entry.work, entry.repetitions));
        }
    }
}

double Race::NanosecondsOf(const std::string& name) const
{
    for (const Entry& entry : m_entries) {
        if (entry.name == name)
            return MedianOf(entry.times);
    }
    return 0;
}

bool Race::IsSteady() const
{
    constexpr double mostAboveFastest = 1.25;
    for (const Entry& entry : m_entries) {
        const double fastest = *std::min_element(entry.times.begin(), entry.times.end());
        if (MedianOf(entry.times) > fastest * mostAboveFastest)
            return false;
    }
    return true;
}
