#pragma once

// Humidity and heat measures from air temperature and humidity.
//
// Kelvin on a scale with the freezing point at exactly 273, vapour pressures in millibars, relative humidity in
// percent.

inline constexpr double freezingPointK = 273;

/// Degrees Fahrenheit of a temperature in kelvin, and degrees Celsius likewise.
[[nodiscard]] double fahrenheitOf(double kelvin);
[[nodiscard]] double celsiusOf(double kelvin);

/// Saturation vapour pressure over water.
///   T  kelvin; 160 and less give a floor of 0.00001, which also keeps clear of the formula's pole
/// Returns millibars.  Source: Magnus' formula.
[[nodiscard]] double saturationPressure(double T);

/// Inverse of `saturationPressure` above its floor.
///   e  millibars; 0 and less give the temperature of about 0.00001
/// Returns kelvin.
[[nodiscard]] double saturationTemp(double e);

/// Dew point: never above the air temperature.
///   T   air temperature, kelvin
///   rh  relative humidity, 0 to 100; 0 gives about 169.65 K
[[nodiscard]] double dewPoint(double T, double rh);

/// Wet bulb temperature at a pressure of 1013.25 millibars, kelvin.
///   T   air temperature, kelvin, above about 244 K (-20 F)
///   rh  relative humidity; above 100 the result is T
/// The psychrometer equation as a damped fixed point, from an estimate in degrees Fahrenheit (one formula from 20 F up,
/// another below). It stops on a change below 0.1 K, on one above the first (it diverges), or after 99 rounds. Measured
/// over the form's bars: 98 pairs in 100 take 1 to 9 rounds, moist air about 15 F, where it swings, up to 99. Dry air of
/// -20 to -16 F stops at once, up to 0.36 K outside dew point and air.
/// Faults: temperatures far above any weather.
[[nodiscard]] double wetBulb(double T, double rh);

/// Approximate wet bulb globe temperature, degrees Celsius.
///   sun             sunshine, 0 to 10
///   airC, wetBulbC  air and wet bulb temperature, degrees Celsius, each as shown: rounded to one decimal
[[nodiscard]] double approximateWbgt(double sun, double airC, double wetBulbC);

/// The same from the unrounded temperatures, which it rounds as the form shows them.
///   airTempK  kelvin
///   rh        relative humidity, 0 to 100
[[nodiscard]] double shownWbgt(double sun, double airTempK, double rh);

/// Heat index, degrees Fahrenheit: from 75 down to 55 a blend towards the air temperature, which it is below 57.
///   airTempK  air temperature, kelvin
///   h         relative humidity, 0 to 100
/// Faults: h above 100, or below -5.5 above 85 F.
[[nodiscard]] double heatIndex(double airTempK, double h);

/// Humidex, degrees Celsius.
///   airTempK  air temperature, kelvin
///   h         relative humidity
[[nodiscard]] double humidexOf(double airTempK, double h);
