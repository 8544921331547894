#pragma once
#include <cstdint>
#include <optional>
#include <string>

// The labour facts of one worksheet. The three judgements (rebar complexity, crew experience,
// site conditions) hold the rating itself, not a list position. Every rating and result is
// computed afresh on each call.
class ZOLManHours {
public:
    // Values alike, field by field (undo tells what a change touched).
    bool operator==(const ZOLManHours&) const = default;
    ZOLManHours();
    void clear();

    double squareFeetOfWall() const { return squareFeetOfWall_; }
    void setSquareFeetOfWall(double value) { squareFeetOfWall_ = value; }
    int32_t cornersAndTs() const { return cornersAndTs_; }
    void setCornersAndTs(int32_t value) { cornersAndTs_ = value; }
    double squareFeetOfOpenings() const { return squareFeetOfOpenings_; }
    void setSquareFeetOfOpenings(double value) { squareFeetOfOpenings_ = value; }
    double linearFeetCorbelCurbTapered() const { return linearFeetCorbelCurbTapered_; }
    void setLinearFeetCorbelCurbTapered(double value) { linearFeetCorbelCurbTapered_ = value; }
    double wallHeight() const { return wallHeight_; }
    void setWallHeight(double value) { wallHeight_ = value; }
    int32_t rebarComplexity() const { return rebarComplexity_; }
    void setRebarComplexity(int32_t value) { rebarComplexity_ = value; }
    int32_t crewExperience() const { return crewExperience_; }
    void setCrewExperience(int32_t value) { crewExperience_ = value; }
    int32_t siteConditions() const { return siteConditions_; }
    void setSiteConditions(int32_t value) { siteConditions_ = value; }
    int32_t otherTurns() const { return otherTurns_; }
    void setOtherTurns(int32_t value) { otherTurns_ = value; }
    double laborCost() const { return laborCost_; }
    void setLaborCost(double value) { laborCost_ = value; }
    int32_t crewSize() const { return crewSize_; }
    void setCrewSize(int32_t value) { crewSize_ = value; }

    int32_t getSquareFeetOfWallRating() const;
    int32_t getCornersAndTsRating() const;
    int32_t getSquareFeetOfOpeningsRating() const;
    int32_t getLinearFeetCorbelCurbTaperedRating() const;
    int32_t getWallHeightRating() const;
    int32_t getOtherTurnsRating() const;
    int32_t getCrewSizeRating() const;
    int32_t getTotalProjectRating() const;
    double getManHourRate() const;
    double getHoursToComplete() const;
    double getDaysToComplete() const;

    // The "ManHourData" element and the reading of its codes (70 to 80). The judgements are
    // written as words; a rating without a word is written "(null)" and reads back unchanged.
    std::string getXMLString() const;
    void appendXML(std::string& out) const;
    void setValue(const std::optional<std::string>& value, int32_t forProperty);

private:
    double squareFeetOfWall_ = 0.0;
    int32_t cornersAndTs_ = 0;
    double squareFeetOfOpenings_ = 0.0;
    double linearFeetCorbelCurbTapered_ = 0.0;
    double wallHeight_ = 8.0;
    int32_t rebarComplexity_ = 3;
    int32_t crewExperience_ = 5;
    int32_t siteConditions_ = 5;
    int32_t otherTurns_ = 0;
    double laborCost_ = 0.0;
    int32_t crewSize_ = 6;
};
