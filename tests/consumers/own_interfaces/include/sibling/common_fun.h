#pragma once

#include <string>

class CClassifyDisplayItem {
public:
    CClassifyDisplayItem(std::wstring lable, unsigned long rgb)
        : m_lable(lable), m_rgb(rgb) {}

    std::wstring GetLable() { return m_lable; }
    void GetColor(unsigned char& red, unsigned char& green, unsigned char& blue,
                  unsigned char& alpha);

private:
    std::wstring m_lable;
    unsigned long m_rgb;
};

class CClassifyDisplayTable {
public:
    int GetClassesCount() { return 1; }
    CClassifyDisplayItem* GetClassifyItem(int) { return &m_item; }

private:
    CClassifyDisplayItem m_item{L"Water", 0x0000FF};
};

class CommonFun {
public:
    static std::wstring double2wstring(double value, int digits);
    static std::wstring int2wstring(int value);
    static std::wstring Trim(std::wstring text);
};

enum CommonMeasureUnits { UnitsUnset = -1, UnitsFoot = 7, UnitsMetre = 9 };
