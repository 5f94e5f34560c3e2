#pragma once

/// @file
/// What a host formats numbers and tells classes with.

#include <cstdint>
#include <string>

/// One class of a classified display, owned by its table.
class CClassifyDisplayItem {
public:
    virtual ~CClassifyDisplayItem() = default;

    /// The name of the class.
    virtual std::wstring GetLable() = 0;

    /// Writes the class colour: red, green, blue, and a fourth component that the
    /// legend ignores.
    virtual void GetColor(unsigned char& red, unsigned char& green, unsigned char& blue,
                          unsigned char& fourth) = 0;
};

/// The classes of a classified display, owned by the data source.
class CClassifyDisplayTable {
public:
    virtual ~CClassifyDisplayTable() = default;

    /// How many classes there are; none when it is below 1.
    virtual int GetClassesCount() = 0;

    /// The class at a zero-based index below the count.
    virtual CClassifyDisplayItem* GetClassifyItem(int index) = 0;
};

/// Numbers as text, the same in every locale.
class CommonFun {
public:
    /// The decimal text of a value, correctly rounded to exactly `digits` places; no
    /// negative zero. `double2wstring(0.125, 2)` is "0.12": a tie between two decimals is
    /// one of the exact binary value, and goes to the even digit. What is no number is
    /// "nan", what is none any more "inf" or "-inf", whatever the digits.
    /// @param digits a count below 0 is taken as 0, one above 1074 as 1074: no double has
    /// more decimal places
    static std::wstring double2wstring(double value, int digits);

    /// The decimal text of an integer, with a leading "-" when it is negative.
    static std::wstring int2wstring(int value);
};

/// Units of length and angle. The library stores one for the host and never converts.
enum CommonMeasureUnits : std::int32_t {
    MeasureUnknown = 0,
    MeasureMeter = 1,
    MeasureKilometer = 2,
    MeasureDegree = 3,
};
