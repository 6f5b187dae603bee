// Conversion of a first or second order transfer function between the s and
// z domains by one of three integration rules. Plain functions of doubles,
// kept apart from the filter editor so that they can be checked alone.
//
//   second order: H(s) = (N0 + N1 s + N2 s^2) / (D0 + D1 s + s^2)
//                 H(z) = (Z3 + Z4 z^-1 + Z5 z^-2) / (1 + Z6 z^-1 + Z7 z^-2)
//   first order:  H(s) = (N0 + N1 s) / (D0 + s)
//                 H(z) = (Z4 + Z5 z^-1) / (1 + Z7 z^-1)
//
// The z slots are named after the elements of the device's parameter array
// that hold them, so that both orders share one layout; at first order Z3
// and Z6 are unused, as are D1 and N2 of the s set.
//
// Every formula is carried out as the written sequence of double operations,
// cancelling factors included: the device model that takes the results is
// sensitive to the last digits, and a rearranged formula gives others.
#pragma once

namespace filtertransforms {

struct SCoefficients {
    double d0 = 0.0;
    double d1 = 0.0;
    double n0 = 0.0;
    double n1 = 0.0;
    double n2 = 0.0;
};

struct ZCoefficients {
    double z3 = 0.0;
    double z4 = 0.0;
    double z5 = 0.0;
    double z6 = 0.0;
    double z7 = 0.0;
};

// By the index of the method in the editor's list.
enum Method { Trapezoidal = 0, BackwardEuler = 1, ForwardEuler = 2 };

enum class Outcome {
    Done,
    DivideByZero, // the denominator failed denominatorTooSmall; nothing written
    NoMethod,     // method outside 0 to 2; nothing written
};

// True for a magnitude up to and including 1e-15. NaN passes.
bool denominatorTooSmall(double d);

// The z set from the s set; at first order the untouched z slots keep their
// values. *denominator receives the value that was checked, if any.
Outcome zFromS(bool firstOrder, int method, double fSampling, const SCoefficients& s,
               ZCoefficients* z, double* denominator = nullptr);
// The s set from the z set; at first order D1 and N2 keep their values.
Outcome sFromZ(bool firstOrder, int method, double fSampling, const ZCoefficients& z,
               SCoefficients* s, double* denominator = nullptr);

} // namespace filtertransforms
