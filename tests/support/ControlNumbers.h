#pragma once

/// The numbers of the templates' controls, under which hosts know them too. A button that ends a
/// dialog has the dialog's result as its number.
namespace qv {

// Lists
inline constexpr int removeButton = 5347;
inline constexpr int addButton = 5348;  ///< adds an hour type in the editor of a slot
inline constexpr int modifyButton = 5349;
inline constexpr int typeList = 5303;  ///< of hour types, of day types, or of a day's slots
inline constexpr int hourTypesBox = 5317;
inline constexpr int dayTypesBox = 5319;

// Discriminators
inline constexpr int exitButton = 1;
inline constexpr int discriminatorsBox = 5264;
inline constexpr int discriminatorList = 5265;

// Editor of a discriminator
inline constexpr int calendarLink = 5004;
inline constexpr int dayTypesLink = 5005;
inline constexpr int hourTypesLink = 5006;
inline constexpr int conditionsLink = 5008;
inline constexpr int descriptionLabel = 5266;
inline constexpr int descriptionEdit = 5267;
inline constexpr int discriminatorNameLabel = 5268;
inline constexpr int typeLabel = 5269;
inline constexpr int discriminatorName = 5270;
inline constexpr int setZeroCheck = 5346;
inline constexpr int typeCombo = 5351;

// Editor of an hour type
inline constexpr int hourValue = 5010;
inline constexpr int hourSwatch = 5261;
inline constexpr int hourNameLabel = 5268;
inline constexpr int hourValueLabel = 5269;
inline constexpr int hourColourLabel = 5302;
inline constexpr int hourName = 5350;

// Editor of a day type
inline constexpr int dayDial = 5000;
inline constexpr int daySwatch = 5262;
inline constexpr int dayName = 5299;
inline constexpr int slotsBox = 5300;
inline constexpr int dialBox = 5301;

// Editor of a slot
inline constexpr int gridBox = 5301;
inline constexpr int slotTypeLabel = 5304;
inline constexpr int slotTypeCombo = 5305;
inline constexpr int fromLabel = 5306;
inline constexpr int toLabel = 5308;
inline constexpr int fromHoursSpin = 5311;
inline constexpr int fromHours = 5313;
inline constexpr int fromMinutesSpin = 5315;
inline constexpr int fromMinutes = 5316;
inline constexpr int toHoursSpin = 5318;
inline constexpr int toHours = 5320;
inline constexpr int toMinutesSpin = 5322;
inline constexpr int toMinutes = 5324;

// Calendar
inline constexpr int calendarView = 5004;
inline constexpr int fastSelectionButton = 5007;
inline constexpr int actionSwatch = 5263;
inline constexpr int calendarDayTypes = 5269;
inline constexpr int calendarDayTypesBox = 5271;
inline constexpr int actionLabel = 5297;

// Fast selection
inline constexpr int fastDayType = 5005;
inline constexpr int fastYear = 5272;
inline constexpr int weekDayChecks[] = {5276, 5277, 5278, 5279, 5280, 5281, 5282};
inline constexpr int monthChecks[] = {5290, 5291, 5292, 5293, 5294, 5295,
                                      5305, 5307, 5309, 5310, 5312, 5314};

// Conditions
inline constexpr int conditionList = 5004;
inline constexpr int addCondition = 5400;
inline constexpr int removeCondition = 5401;
inline constexpr int modifyCondition = 5402;
inline constexpr int conditionsBox = 5403;
inline constexpr int conditionUp = 5407;
inline constexpr int conditionDown = 5408;

// Editor of a condition
inline constexpr int expressionLabel = 5404;
inline constexpr int expressionEdit = 5405;
inline constexpr int wizardButton = 5406;
inline constexpr int conditionName = 5407;
inline constexpr int conditionNameLabel = 5408;

}  // namespace qv
