// Timing pieces of work against each other.
#pragma once

#include <functional>
#include <string>
#include <vector>

/// Times several pieces of work against each other in one run: they take turns, round after round,
/// so that whatever slows the machine for a while slows them all.
class Race
{
public:
    using Work = std::function<void()>;

    /// `prepare` comes before the work in each round and is not timed.
    void Add(
        std::string name, Work work, Work prepare = [] {});
    /// Runs all rounds. Work that takes less than a fifth of a millisecond is repeated within each.
    void Run(int rounds = 21);
    /// Median nanoseconds of one piece of work.
    double NanosecondsOf(const std::string& name) const;
    /// Whether no median is far above its fastest round, as it is on a machine that is too busy for
    /// long pieces of work to run through.
    bool IsSteady() const;

private:
    struct Entry
    {
        std::string name;
        Work work;
        Work prepare;
        int repetitions;
        std::vector<double> times;
    };

    std::vector<Entry> m_entries;
};
