// The inner loops over any set of vectors ("lanes"), for the one source of each instruction set.
//
// Everything here lies in the unnamed namespace, and only plain data comes from outside: code that
// was compiled for a newer processor must not be merged by the linker with that of other sources.
//
// Lanes keep the states of a block of pixels that lie side by side, each state being the one whose
// upper bits are the pixel's number. States are kept doubled, which puts the 15 bits of the number
// at the top of the word and leaves the bit that no number needs outside.
//
// What a loop needs of its job is read before it: the compiler has to take it that stored bytes may
// belong to the job.
#pragma once

#include "faces/ShadeGrain.h"

namespace {

constexpr RandomJump Join(RandomJump first, RandomJump second)
{
    return {first.factor * second.factor, first.offset * second.factor + second.offset};
}

constexpr RandomJump Repeat(RandomJump jump, int times)
{
    RandomJump all = {1, 0};
    for (int i = 0; i < times; ++i)
        all = Join(all, jump);
    return all;
}

constexpr RandomJump singleStep = {ShadeRandom::multiplier, ShadeRandom::increment};

/// The jumps from the state before a block to each of its lanes, in the lanes' own order.
template <class Lanes>
struct BlockStart
{
    alignas(32) std::uint32_t factors[Lanes::words] = {};
    alignas(32) std::uint32_t offsets[Lanes::words] = {};

    constexpr BlockStart()
    {
        RandomJump jump = singleStep;
        for (int i = 0; i < Lanes::pixelsAtOnce; ++i) {
            factors[Lanes::WordOf(i)] = jump.factor;
            offsets[Lanes::WordOf(i)] = jump.offset * 2;
            jump = Join(jump, singleStep);
        }
    }
};

template <class Lanes>
std::uint32_t GrainRows(const GrainJob& job)
{
    static constexpr BlockStart<Lanes> start;
    constexpr RandomJump block = Repeat(singleStep, Lanes::pixelsAtOnce);
    const typename Lanes::Jump blockJump(block);
    const typename Lanes::Divider divider(job.divider);
    const std::uint8_t* const base = job.base;
    const int width = job.width;

    std::uint32_t state = job.state;
    std::uint8_t* row = job.bits;
    for (int r = 0; r < job.rows; ++r, row += job.stride) {
        const auto add = Lanes::Spread(job.add[r]);
        Lanes lanes(state, start.factors, start.offsets);
        int x = 0;
        for (; x + Lanes::pixelsAtOnce <= width; x += Lanes::pixelsAtOnce) {
            Lanes::Store(row + x, lanes.Pixels(divider, base + x, add));
            lanes.Advance(blockJump);
        }
        if (x < width)
            Lanes::StorePart(row + x, lanes.Pixels(divider, base + x, add), width - x);
        state = state * job.lineJump.factor + job.lineJump.offset;
    }
    return state;
}

/// Fills in the states of each column's first pixel.
template <class Lanes>
void StartColumns(const GrainJob& job, std::uint32_t* states)
{
    std::uint32_t state = job.state * singleStep.factor + singleStep.offset;
    for (int i = 0; i < Lanes::pixelsAtOnce; ++i) {
        states[Lanes::WordOf(i)] = state * 2;
        state = state * job.lineJump.factor + job.lineJump.offset;
    }
    Lanes lanes(states);
    const typename Lanes::Jump blockJump(Repeat(job.lineJump, Lanes::pixelsAtOnce));
    for (int x = 0; x < job.width; x += Lanes::pixelsAtOnce, states += Lanes::words) {
        lanes.Save(states);
        lanes.Advance(blockJump);
    }
}

/// Columns lie side by side in the lanes, so that whole rows of a block are written at once. Bands
/// of some rows keep the states in registers for a while and the writing within a few rows.
template <class Lanes>
void GrainColumns(const GrainJob& job, std::uint32_t* states)
{
    constexpr int rowsAtOnce = 16;
    const typename Lanes::Jump oneStep(singleStep);
    const typename Lanes::Divider divider(job.divider);
    StartColumns<Lanes>(job, states);

    for (int band = 0; band < job.rows; band += rowsAtOnce) {
        const int end = band + rowsAtOnce < job.rows ? band + rowsAtOnce : job.rows;
        std::uint32_t* blockStates = states;
        for (int x = 0; x < job.width; x += Lanes::pixelsAtOnce, blockStates += Lanes::words) {
            const int left = job.width - x;
            Lanes lanes(blockStates);
            std::uint8_t* target = job.bits + band * job.stride + x;
            for (int r = band; r < end; ++r, target += job.stride) {
                const auto pixels = lanes.Pixels(divider, job.base + x, Lanes::Spread(job.add[r]));
                if (left >= Lanes::pixelsAtOnce)
                    Lanes::Store(target, pixels);
                else
                    Lanes::StorePart(target, pixels, left);
                lanes.Advance(oneStep);
            }
            lanes.Save(blockStates);
        }
    }
}

template <class Lanes>
void CrossBump(const CrossBumpJob& job)
{
    const typename Lanes::BumpTerms terms(job);
    const std::int16_t* const columns = job.columns;
    std::uint8_t* const bits = job.bits;
    const int width = job.width;
    for (int x = 0; x < width; x += Lanes::pixelsAtOnce)
        Lanes::Store(bits + x, Lanes::CrossBumpPixels(terms, columns + x));
}

template <class Lanes>
constexpr GrainKernels KernelsOf()
{
    return {GrainRows<Lanes>, GrainColumns<Lanes>, CrossBump<Lanes>};
}

} // namespace
