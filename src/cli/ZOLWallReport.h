#pragma once
// The take-off of one wall and its openings as JSON and as terminal text, shared by
// `zolest calc wall` and the workbook take-off.
#include <nlohmann/json.hpp>

#include <ostream>

class ZOLWall;
class ZOLOpenings;

namespace zolcli {

// Every query of the wall under its own name, the wall's fields under "fields", and "parts":
// one entry per part type 0 to 16 with count, bundle size, bundles and weights.
nlohmann::json wallJson(const ZOLWall& wall);
// The three totals and every row with its fields and per-row values.
nlohmann::json openingsJson(const ZOLOpenings& openings);

// Aligned plain-text tables for a terminal.
void printWallTakeoff(std::ostream& out, const ZOLWall& wall);
void printOpenings(std::ostream& out, const ZOLOpenings& openings);

} // namespace zolcli
