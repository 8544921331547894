#include "model/ZOLManHours.h"

#include "calc/ZOLManHourCalculator.h"
#include "io/ZOLFormat.h"
#include "io/ZOLNumeric.h"
#include "io/ZOLText.h"
#include "model/ZOLFileProperty.h"

#include <array>
#include <utility>

namespace {
using RatingWord = std::pair<int32_t, const char*>;

// The words the workbook file uses for the judgements. They are the file's own vocabulary,
// not the screen's: above-average complexity is "AboveAvg" here.
constexpr std::array<RatingWord, 5> kComplexityWords = {
    {{1, "None"}, {2, "Minor"}, {3, "Average"}, {6, "AboveAvg"}, {9, "Intense"}}};
constexpr std::array<RatingWord, 3> kExperienceWords = {{{9, "Low"}, {5, "Average"}, {2, "High"}}};
constexpr std::array<RatingWord, 3> kConditionWords = {{{9, "Poor"}, {5, "Average"}, {3, "Ideal"}}};

template <std::size_t N>
std::optional<std::string> wordFor(int32_t rating, const std::array<RatingWord, N>& words) {
    for (const auto& [value, word] : words)
        if (value == rating)
            return std::string(word);
    return std::nullopt; // written as "(null)"
}

// A word the file does not know leaves the rating as it was.
template <std::size_t N>
void readWord(const std::optional<std::string>& text, const std::array<RatingWord, N>& words,
              int32_t& rating) {
    if (!text)
        return;
    for (const auto& [value, word] : words)
        if (*text == word) {
            rating = value;
            return;
        }
}
} // namespace

ZOLManHours::ZOLManHours() {
    clear();
}

void ZOLManHours::clear() {
    squareFeetOfWall_ = 0.0;
    cornersAndTs_ = 0;
    squareFeetOfOpenings_ = 0.0;
    linearFeetCorbelCurbTapered_ = 0.0;
    wallHeight_ = 8.0;
    rebarComplexity_ = 3;
    crewExperience_ = 5;
    siteConditions_ = 5;
    otherTurns_ = 0;
    laborCost_ = 0.0;
    crewSize_ = 6;
}

int32_t ZOLManHours::getSquareFeetOfWallRating() const {
    return ZOLManHourCalculator::getSqFtWallRatingWithSqFtOfWall(squareFeetOfWall_);
}

int32_t ZOLManHours::getCornersAndTsRating() const {
    return ZOLManHourCalculator::getCornerTsRatingWithNumberOfCornersAndTs(cornersAndTs_,
                                                                           squareFeetOfWall_);
}

int32_t ZOLManHours::getSquareFeetOfOpeningsRating() const {
    return ZOLManHourCalculator::getOpeningsRatingWithSqFtOfOpenings(squareFeetOfOpenings_,
                                                                     squareFeetOfWall_);
}

int32_t ZOLManHours::getLinearFeetCorbelCurbTaperedRating() const {
    return ZOLManHourCalculator::getCorbelCurbTaperRatingWithLinealFeet(
        linearFeetCorbelCurbTapered_, squareFeetOfWall_);
}

int32_t ZOLManHours::getWallHeightRating() const {
    return ZOLManHourCalculator::getWallHeightRatingWithWallHeight(wallHeight_);
}

int32_t ZOLManHours::getOtherTurnsRating() const {
    return ZOLManHourCalculator::getOtherTurnsRatingWithNumberOfOtherTurns(otherTurns_);
}

int32_t ZOLManHours::getCrewSizeRating() const {
    return ZOLManHourCalculator::getCrewSizeRatingWithCrewSize(crewSize_, squareFeetOfWall_);
}

int32_t ZOLManHours::getTotalProjectRating() const {
    // The stored judgements and the other turns enter as they are, so the sum can wrap for
    // absurd values instead of overflowing.
    const int32_t ratings[] = {getCornersAndTsRating(),
                               crewExperience_,
                               getCrewSizeRating(),
                               getLinearFeetCorbelCurbTaperedRating(),
                               rebarComplexity_,
                               siteConditions_,
                               getSquareFeetOfOpeningsRating(),
                               getSquareFeetOfWallRating(),
                               getWallHeightRating(),
                               getOtherTurnsRating()};
    int32_t total = 0;
    for (int32_t rating : ratings)
        total = ZOLNumeric::wrapAdd(total, rating);
    return total;
}

double ZOLManHours::getManHourRate() const {
    return ZOLManHourCalculator::getManHourRateWithRating(getTotalProjectRating());
}

double ZOLManHours::getHoursToComplete() const {
    return ZOLManHourCalculator::getHoursToCompleteWithRating(getTotalProjectRating(),
                                                              squareFeetOfWall_);
}

double ZOLManHours::getDaysToComplete() const {
    return ZOLManHourCalculator::getDaysToCompleteWithRating(getTotalProjectRating(),
                                                             squareFeetOfWall_, crewSize_);
}

void ZOLManHours::appendXML(std::string& out) const {
    out += "\t\t\t<ManHourData>\n";
    ZOLFormat::append(out, "\t\t\t\t<SquareFeetOfWall>%f</SquareFeetOfWall>\n", squareFeetOfWall_);
    ZOLFormat::append(out, "\t\t\t\t<CornersAndTs>%d</CornersAndTs>\n", cornersAndTs_);
    ZOLFormat::append(out, "\t\t\t\t<SquareFeetOfOpenings>%f</SquareFeetOfOpenings>\n",
                             squareFeetOfOpenings_);
    ZOLFormat::append(out, "\t\t\t\t<LinealFeetCorbelCurbTapered>%f</LinealFeetCorbelCurbTapered>\n",
                          linearFeetCorbelCurbTapered_);
    ZOLFormat::append(out, "\t\t\t\t<WallHeight>%f</WallHeight>\n", wallHeight_);
    ZOLFormat::append(out, "\t\t\t\t<RebarComplexity>%@</RebarComplexity>\n",
                             wordFor(rebarComplexity_, kComplexityWords));
    ZOLFormat::append(out, "\t\t\t\t<CrewExperience>%@</CrewExperience>\n",
                             wordFor(crewExperience_, kExperienceWords));
    ZOLFormat::append(out, "\t\t\t\t<SiteConditions>%@</SiteConditions>\n",
                             wordFor(siteConditions_, kConditionWords));
    ZOLFormat::append(out, "\t\t\t\t<OtherTurns>%d</OtherTurns>\n", otherTurns_);
    ZOLFormat::append(out, "\t\t\t\t<LaborCost>%f</LaborCost>\n", laborCost_);
    ZOLFormat::append(out, "\t\t\t\t<CrewSize>%d</CrewSize>\n", crewSize_);
    out += "\t\t\t</ManHourData>\n";
}

std::string ZOLManHours::getXMLString() const {
    std::string out;
    appendXML(out);
    return out;
}

void ZOLManHours::setValue(const std::optional<std::string>& value, int32_t forProperty) {
    switch (forProperty) {
    case ZOLFileProperty::SquareFeetOfWall:
        squareFeetOfWall_ = ZOLText::leadingDouble(value);
        break;
    case ZOLFileProperty::CornersAndTs:
        cornersAndTs_ = ZOLText::leadingInt(value);
        break;
    case ZOLFileProperty::SquareFeetOfOpenings:
        squareFeetOfOpenings_ = ZOLText::leadingDouble(value);
        break;
    case ZOLFileProperty::LinealFeetCorbelCurbTapered:
        linearFeetCorbelCurbTapered_ = ZOLText::leadingDouble(value);
        break;
    case ZOLFileProperty::ManHoursWallHeight:
        wallHeight_ = ZOLText::leadingDouble(value);
        break;
    case ZOLFileProperty::RebarComplexity:
        readWord(value, kComplexityWords, rebarComplexity_);
        break;
    case ZOLFileProperty::CrewExperience:
        readWord(value, kExperienceWords, crewExperience_);
        break;
    case ZOLFileProperty::SiteConditions:
        readWord(value, kConditionWords, siteConditions_);
        break;
    case ZOLFileProperty::OtherTurns:
        otherTurns_ = ZOLText::leadingInt(value);
        break;
    case ZOLFileProperty::LaborCost:
        laborCost_ = ZOLText::leadingDouble(value);
        break;
    case ZOLFileProperty::CrewSize:
        crewSize_ = ZOLText::leadingInt(value);
        break;
    default:
        break;
    }
}
