#include <cstddef>
#include <cstdint>
#include <string>

#include "program/program.h"
#include "splits/splitform_form.h"

// Bytes as a paste into the grid of splits: nothing but texts changes, and every fault is told.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    ModelState state;
    state.curve.aerobicPower = 759;
    state.curve.anaerobicEnergy = 512138;
    state.curve.refDistance = 5000;
    state.curve.fatigueCoef = 0.109;
    Outside outside;
    StoredSplits stored;
    SplitForm form(state, outside, stored);
    try
    {
        (void)pasteSplits(form, data[0] % splitRows, static_cast<SplitColumn>(data[0] % 3),
                          std::string(data + 1, data + size));
    }
    catch (const ArithmeticFault&)
    {
        // rows that can't be analysed
    }
    return 0;
}
