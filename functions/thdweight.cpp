// ThdWeight: the standard frequency weighting curves as a waveform.
#include "callargs.h"
#include "registration.h"

namespace {

constexpr int kPoints = 34;

constexpr double kFrequency[kPoints] = {
    10,   12.5, 16,   20,   25,   31.5, 40,   50,    63,    80,    100,   125,
    160,  200,  250,  315,  400,  500,  630,  800,   1000,  1250,  1600,  2000,
    2500, 3150, 4000, 5000, 6300, 8000, 10000, 12500, 16000, 20000};

constexpr double kWeightA[kPoints] = {
    -70.4, -63.4, -56.7, -50.5, -44.7, -39.4, -34.6, -30.2, -26.2, -22.5, -19.1, -16.1,
    -13.4, -10.9, -8.6,  -6.6,  -4.8,  -3.2,  -1.9,  -0.8,  0.0,   0.6,   1.0,   1.2,
    1.3,   1.2,   1.0,   0.5,   -0.1,  -1.1,  -2.5,  -4.3,  -6.6,  -9.3};

constexpr double kWeightB[kPoints] = {
    -38.1, -33.2, -28.5, -24.2, -20.4, -17.1, -14.2, -11.6, -9.3, -7.4, -5.6, -4.2,
    -3.0,  -2.0,  -1.3,  -0.8,  -0.5,  -0.3,  -0.1,  0.0,   0.0,  0.0,  0.0,  -0.1,
    -0.2,  -0.4,  -0.7,  -1.2,  -1.9,  -2.9,  -4.3,  -6.1,  -8.4, -11.1};

constexpr double kWeightC[kPoints] = {
    -14.3, -11.2, -8.5, -6.2, -4.4, -3.0, -2.0, -1.3, -0.8, -0.5, -0.3, -0.2,
    -0.1,  0.0,   0.0,  0.0,  0.0,  0.0,  0.0,  0.0,  0.0,  0.0,  -0.1, -0.2,
    -0.3,  -0.5,  -0.8, -1.3, -2.0, -3.0, -4.4, -6.2, -8.5, -11.2};

constexpr double kWeightD[kPoints] = {
    -26.6, -24.6, -22.6, -20.6, -18.7, -16.7, -14.7, -12.8, -10.9, -9.0, -7.2, -5.5,
    -4.0,  -2.6,  -1.6,  -0.8,  -0.4,  -0.3,  -0.5,  -0.6,  0.0,   2.0,  4.9,  7.9,
    10.4,  11.6,  11.1,  9.6,   7.6,   5.5,   3.4,   1.4,   -0.7,  -2.7};

const double* weightTable(const char* key)
{
    if (callargs::sameNoCase(key, "a"))
        return kWeightA;
    if (callargs::sameNoCase(key, "b"))
        return kWeightB;
    if (callargs::sameNoCase(key, "c"))
        return kWeightC;
    if (callargs::sameNoCase(key, "d"))
        return kWeightD;
    return nullptr;
}

void thdWeight(UserFunctionInterface* ufi)
{
    const double* table = weightTable(callargs::text(ufi, 0));
    if (!table)
        return;
    double* y = ufi->MakeRealVector(ufi, kPoints, "");
    double* x = ufi->MakeXVector(ufi, kPoints, "");
    for (int i = 0; i < kPoints; ++i) {
        if (y)
            y[i] = table[i];
        if (x)
            x[i] = kFrequency[i];
    }
}

long long thdWeightHandler(UserFunctionInterface* ufi)
{
    thdWeight(ufi);
    return 0;
}

const FunctionRegistration registerThdWeight("ThdWeight", argLimits(1, 1), &thdWeightHandler,
                                             {ArgStrings});

} // namespace
