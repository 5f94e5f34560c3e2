#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <clocale>
#include <cmath>
#include <locale>
#include <sstream>
#include <string>
#include <utility>

#include "element/no_numbers.h"
#include "host/common_functions.h"

namespace {

// The exact binary value decides; in decimal the doubles behind these literals are
//   0.1
//   0.1000000000000000055…   2.675  2.67499999999999982236431605997495353221893310546875
//   1.005    1.00499999999999989…     0.035  0.03500000000000000333…
//   0.615    0.61499999999999999…     1e23   99999999999999991611392
const struct {
    double value;
    int digits;
    std::wstring text;
} kNumbers[] = {
    {0.0, 0, L"0"},
    {0.0, 2, L"0.00"},
    {1.0, 0, L"1"},
    {1.0, 3, L"1.000"},
    {-1.5, 1, L"-1.5"},
    {1234567.891, 2, L"1234567.89"},
    {1e6, 0, L"1000000"},
    {1e23, 0, L"99999999999999991611392"},
    {9007199254740993.0, 0, L"9007199254740992"},  // 2^53 + 1 is no double
    {900719925474099.5, 1, L"900719925474099.5"},  // nor is its product with 10

    // Ties of the exact value go to the even digit.
    {0.5, 0, L"0"},
    {1.5, 0, L"2"},
    {2.5, 0, L"2"},
    {3.5, 0, L"4"},
    {-0.5, 0, L"0"},
    {-1.5, 0, L"-2"},
    {0.25, 1, L"0.2"},
    {0.75, 1, L"0.8"},
    {0.125, 2, L"0.12"},
    {0.375, 2, L"0.38"},
    {0.625, 2, L"0.62"},
    {0.0625, 3, L"0.062"},
    {1.03125, 4, L"1.0312"},

    // These look like ties, and are not.
    {2.675, 2, L"2.67"},
    {1.005, 2, L"1.00"},
    {0.615, 2, L"0.61"},
    {0.035, 2, L"0.04"},

    // Carried through all digits.
    {9.9999, 3, L"10.000"},
    {999.5, 0, L"1000"},
    {-0.999, 2, L"-1.00"},
    {0.95, 0, L"1"},

    // No negative zero, however it comes about.
    {-0.0, 0, L"0"},
    {-0.0, 2, L"0.00"},
    {-0.001, 2, L"0.00"},
    {-0.005, 2, L"-0.01"},  // 0.005000000000000000104…
    {-0.0049, 2, L"0.00"},
    {-DBL_TRUE_MIN, 10, L"0.0000000000"},

    // 2^-10 has the ten decimals that are the digits of 5^10.
    {1.0 / 1024.0, 10, L"0.0009765625"},
    {1.0 / 1024.0, 12, L"0.000976562500"},

    // The ends of the range.
    {DBL_MIN, 3, L"0.000"},
    {DBL_TRUE_MIN, 0, L"0"},
    // 1e300 is 0x1.7e43c8800759cp+996: its 53 bits times a power of two, written out.
    {1e300, 0,
     L"1000000000000000052504760255204420248704468581108159154915854115511802457988"
     L"9081957863713750804478640437044438328838781769425232353604305756447921847867"
     L"0698284838720092657580373783023379478809005936895323497079994508111903896764"
     L"0880074652742780142494579258788820056842838115669472196386865459400540160"},
    {kInfinity, 2, L"inf"},
    {-kInfinity, 0, L"-inf"},
    {kNan, 2, L"nan"},
    {std::copysign(kNan, -1.0), 0, L"nan"},

    // Counts of digits that no label has.
    {1.75, -1, L"2"},
    {1.75, INT_MIN, L"2"},
    {0.1, 20, L"0.10000000000000000555"},
};

TEST(NumberText, HasExactlyTheDigitsAskedForAndTheNearestValue) {
    for (const auto& row : kNumbers) {
        EXPECT_EQ(CommonFun::double2wstring(row.value, row.digits), row.text)
            << row.value << " with " << row.digits << " digits";
    }
}

/// k with the point before its last digits.
std::wstring WithPoint(long long k, int places) {
    std::wstring digits = std::to_wstring(k);
    const auto least = static_cast<std::size_t>(places) + 1;
    digits.insert(0, digits.size() < least ? least - digits.size() : 0, L'0');
    return places == 0 ? digits : digits.insert(digits.size() - least + 1, 1, L'.');
}

TEST(NumberText, WholeUnitsOfTheLastPlaceAreWrittenAsTheyAre) {
    // k / 10^n is nearer to k units than a third of one, and so are its neighbours.
    double power = 1.0;
    for (int places = 0; places <= 12; ++places, power *= 10.0) {
        for (const long long k : {0LL, 1LL, 5LL, 9LL, 10LL, 37LL, 99LL, 100LL, 4096LL,
                                  65535LL, 999999LL, 123456789LL, 999999999999999LL}) {
            const double value = static_cast<double>(k) / power;
            const std::wstring text = WithPoint(k, places);
            EXPECT_EQ(CommonFun::double2wstring(value, places), text);
            EXPECT_EQ(CommonFun::double2wstring(std::nextafter(value, kInfinity), places),
                      text);
            EXPECT_EQ(CommonFun::double2wstring(std::nextafter(value, 0.0), places),
                      text);
        }
    }
}

TEST(NumberText, TheLargestAndTheMostPreciseFit) {
    const std::wstring largest = CommonFun::double2wstring(-DBL_MAX, INT_MAX);
    EXPECT_EQ(largest.size(), 1U + 309U + 1U + 1074U);
    EXPECT_EQ(largest.substr(0, 18), L"-17976931348623157");
    const std::wstring smallest = CommonFun::double2wstring(DBL_TRUE_MIN, INT_MAX);
    EXPECT_EQ(smallest.size(), 2U + 1074U);
    EXPECT_EQ(smallest.substr(2, 323), std::wstring(323, L'0'));
    EXPECT_EQ(smallest.substr(325, 4), L"4940");  // 4.940…e-324
    EXPECT_EQ(smallest.back(), L'5');
}

TEST(NumberText, IntegersHaveTheirSignAndNothingElse) {
    const std::pair<int, std::wstring> rows[] = {
        {0, L"0"},
        {7, L"7"},
        {-1, L"-1"},
        {1000, L"1000"},
        {-3700, L"-3700"},
        {INT_MAX, L"2147483647"},
        {INT_MIN, L"-2147483648"},
    };
    for (const auto& [value, text] : rows) {
        EXPECT_EQ(CommonFun::int2wstring(value), text);
    }
}

/// A locale that writes 1234.5 as 1.234,5, set for C++ and, where there is one, for C.
class CommaLocale {
public:
    CommaLocale() : m_cxx(std::locale::global(std::locale(std::locale(), new Comma))) {
        for (const char* name :
             {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "pt_BR.UTF-8"}) {
            if (std::setlocale(LC_ALL, name) != nullptr) {
                break;
            }
        }
    }
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;
    ~CommaLocale() {
        std::locale::global(m_cxx);
        std::setlocale(LC_ALL, "C");
    }

private:
    struct Comma : std::numpunct<wchar_t> {
        wchar_t do_decimal_point() const override { return L','; }
        wchar_t do_thousands_sep() const override { return L'.'; }
        std::string do_grouping() const override { return "\3"; }
    };
    std::locale m_cxx;
};

TEST(NumberText, DoesNotFollowTheLocale) {
    const CommaLocale locale;
    std::wostringstream stream;
    stream << 1234567.25;
    ASSERT_NE(stream.str().find(L','), std::wstring::npos) << "the locale has no effect";
    EXPECT_EQ(CommonFun::double2wstring(1234567.25, 1), L"1234567.2");
    EXPECT_EQ(CommonFun::int2wstring(1234567), L"1234567");
}

}  // namespace
