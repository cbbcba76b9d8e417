#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "datafiles/code_page.h"
#include "datafiles/personal_file.h"
#include "model/arithmetic.h"

// Bytes as a personal data file: nine values at the most, each on one line and without a comma, and numbers within
// their range or a fault.

namespace
{
    void check(bool good, const char* what)
    {
        if (good)
            return;
        std::cerr << what << '\n';
        std::abort();
    }
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(data, data + size);
    const bool asItIs = isUtf8(bytes);   // else a control character becomes a blank
    const std::vector<std::string> fields = personalFieldsOf(bytes);
    check(fields.size() <= static_cast<std::size_t>(personalFields), "too many values");
    for (const std::string& field : fields)
    {
        check(field.find_first_of(",\r\n") == std::string::npos, "a value goes on behind its end");
        check(!asItIs || !field.starts_with(' '), "a value begins with a blank");
        try
        {
            const int value = scrollValueOf(field, 30, 300);
            check(value >= 30 && value <= 300, "a value is outside its bar");
            (void)truthOf(field);
        }
        catch (const ArithmeticFault&)
        {
            check(field.size() > 3, "a short number is too large");
        }
    }
    return 0;
}
