#include "program/weather_forms.h"

#include "program/tool_place.h"
#include "weather/heathum_form.h"

void addWeatherForms(Program& program)
{
    program.forms.push_back(plainToolPlace<HeathumForm>(program, "heathum"));
}
