#pragma once
// The rebar, concrete, tilt-up and man-hour records as zolest shows them: one JSON object of
// every input and every computed value, or an aligned text with units. `zolest calc` prints a
// single record this way and `zolest takeoff` prints each worksheet's records the same way.
#include <nlohmann/json.hpp>

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>

class ZOLRebar;
class ZOLConcrete;
class ZOLTilt;
class ZOLManHours;

namespace zolcli {

// The name of a stored bar size the way the rebar entry screen shows it: list entry size - 1
// of the Imperial list for measurement 0, of the Metric list otherwise. Nothing when the list
// has no such entry (an Imperial "#8" left on a Metric record, or a damaged size).
std::optional<std::string> rebarSizeName(int32_t measurement, int32_t size);

// Every `get...` query under its own name and the record's fields under "fields", as
// `zolest calc wall` gives the wall; rebar adds the four size names ("horizontalSize1Name"
// and so on, null where the list has none), man hours the three judgement words.
nlohmann::json rebarJson(const ZOLRebar& rebar);
nlohmann::json concreteJson(const ZOLConcrete& concrete);
nlohmann::json tiltJson(const ZOLTilt& tilt);
nlohmann::json manHoursJson(const ZOLManHours& manHours);

void printRebar(std::ostream& out, const ZOLRebar& rebar);
void printConcrete(std::ostream& out, const ZOLConcrete& concrete);
void printTilt(std::ostream& out, const ZOLTilt& tilt);
void printManHours(std::ostream& out, const ZOLManHours& manHours);

} // namespace zolcli
