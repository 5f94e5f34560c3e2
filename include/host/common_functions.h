#pragma once

/// @file
/// Number formatting and classification tables.

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

    /// How many classes there are; a count below 1 means none.
    virtual int GetClassesCount() = 0;

    /// The class at a zero-based index below the count.
    virtual CClassifyDisplayItem* GetClassifyItem(int index) = 0;
};

/// Numbers as text, the same in every locale.
class CommonFun {
public:
    /// The decimal text of a value, correctly rounded to exactly `digits` places; never a
    /// negative zero. `double2wstring(0.125, 2)` is "0.12": ties, which are judged on the
    /// exact binary value, go to the even digit. NaN is "nan" and the infinities are
    /// "inf" and "-inf", whatever the digits.
    /// @param digits clamped to 0 and 1074, which is the most decimal places a double has
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
