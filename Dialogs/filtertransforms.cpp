#include "filtertransforms.h"

#include <cmath>

// The build compiles this file with -ffp-contract=off: a fused multiply-add
// would round differently from the operations as written.

namespace filtertransforms {

bool denominatorTooSmall(double d)
{
    return 1e-15 >= std::fabs(d);
}

namespace {

// Checks d, reports it, and tells whether the transform may go on.
bool guardPasses(double d, double* denominator)
{
    if (denominator)
        *denominator = d;
    return !denominatorTooSmall(d);
}

} // namespace

Outcome zFromS(bool firstOrder, int method, double fSampling, const SCoefficients& s,
               ZCoefficients* z, double* denominator)
{
    if (!z || method < Trapezoidal || method > ForwardEuler)
        return Outcome::NoMethod;
    const double T = 1.0 / fSampling;
    const double T2 = std::pow(T, 2.0);
    const double D0 = s.d0, D1 = s.d1, N0 = s.n0, N1 = s.n1, N2 = s.n2;
    ZCoefficients r = *z;

    if (firstOrder) {
        switch (method) {
        case Trapezoidal: {
            const double D = D0 * T + 2.0;
            if (!guardPasses(D, denominator))
                return Outcome::DivideByZero;
            r.z7 = (T * D0 - 2.0) / D;
            r.z4 = (N1 * 2.0 + T * N0) / D;
            r.z5 = (T * N0 - N1 * 2.0) / D;
            break;
        }
        case BackwardEuler: {
            const double D = D0 * T + 1.0;
            if (!guardPasses(D, denominator))
                return Outcome::DivideByZero;
            r.z7 = -1.0 / D;
            r.z4 = (N0 * T + N1) / D;
            r.z5 = (-N1) / D;
            break;
        }
        default: // ForwardEuler divides by nothing
            r.z7 = T * D0 - 1.0;
            r.z4 = N1;
            r.z5 = T * N0 - N1;
            break;
        }
    } else {
        switch (method) {
        case Trapezoidal: {
            const double D = D1 * 2.0 * T + T2 * D0 + 4.0;
            if (!guardPasses(D, denominator))
                return Outcome::DivideByZero;
            r.z7 = (D0 * T2 - D1 * 2.0 * T + 4.0) / D;
            r.z6 = (D0 * 2.0 * T2 - 8.0) / D;
            r.z3 = (N1 * 2.0 * T + N0 * T2 + N2 * 4.0) / D;
            r.z4 = (N0 * 2.0 * T2 - N2 * 8.0) / D;
            r.z5 = (N0 * T2 - N1 * 2.0 * T + N2 * 4.0) / D;
            break;
        }
        case BackwardEuler: {
            const double D = T2 * D0 + D1 * T + 1.0;
            if (!guardPasses(D, denominator))
                return Outcome::DivideByZero;
            r.z7 = 1.0 / D;
            r.z6 = (-(T * D1) - 2.0) / D;
            r.z3 = (T2 * N0 + T * N1 + N2) / D;
            r.z4 = (-(T * N1) - N2 * 2.0) / D;
            r.z5 = N2 / D;
            break;
        }
        default:
            r.z7 = T2 * D0 - T * D1 + 1.0;
            r.z6 = T * D1 - 2.0;
            r.z3 = N2;
            r.z4 = T * N1 - N2 * 2.0;
            r.z5 = T2 * N0 - T * N1 + N2;
            break;
        }
    }
    *z = r;
    return Outcome::Done;
}

Outcome sFromZ(bool firstOrder, int method, double fSampling, const ZCoefficients& z,
               SCoefficients* s, double* denominator)
{
    if (!s || method < Trapezoidal || method > ForwardEuler)
        return Outcome::NoMethod;
    const double T = 1.0 / fSampling;
    const double T2 = std::pow(T, 2.0);
    const double Z3 = z.z3, Z4 = z.z4, Z5 = z.z5, Z6 = z.z6, Z7 = z.z7;
    SCoefficients r = *s;

    if (firstOrder) {
        double D = 0.0;
        switch (method) {
        case Trapezoidal: D = (1.0 - Z7) * T; break;
        case BackwardEuler: D = (-Z7) * T; break;
        default: D = T; break;
        }
        if (!guardPasses(D, denominator))
            return Outcome::DivideByZero;
        switch (method) {
        case Trapezoidal:
            r.d0 = (Z7 * 2.0 + 2.0) / D;
            r.n0 = (Z5 * 2.0 + Z4 * 2.0) / D;
            r.n1 = ((Z4 - Z5) * T) / D;
            break;
        case BackwardEuler:
            r.d0 = (Z7 + 1.0) / D;
            r.n0 = (Z5 + Z4) / D;
            r.n1 = ((-Z5) * T) / D;
            break;
        default:
            r.d0 = (Z7 + 1.0) / D;
            r.n0 = (Z4 + Z5) / D;
            r.n1 = (Z4 * T) / D;
            break;
        }
    } else {
        double D = 0.0;
        switch (method) {
        case Trapezoidal: D = (Z7 - Z6 + 1.0) * T2; break;
        case BackwardEuler: D = T2 * Z7; break;
        default: D = T2; break;
        }
        if (!guardPasses(D, denominator))
            return Outcome::DivideByZero;
        switch (method) {
        case Trapezoidal:
            r.d0 = (Z6 * 4.0 + Z7 * 4.0 + 4.0) / D;
            r.d1 = ((4.0 - Z7 * 4.0) * T) / D;
            r.n0 = (Z4 * 4.0 + Z5 * 4.0 + Z3 * 4.0) / D;
            r.n1 = ((Z3 * 4.0 - Z5 * 4.0) * T) / D;
            r.n2 = ((Z5 - Z4 + Z3) * T2) / D;
            break;
        case BackwardEuler:
            r.d0 = (Z6 + Z7 + 1.0) / D;
            r.d1 = ((Z7 * -2.0 - Z6) * T) / D;
            r.n0 = (Z5 + Z4 + Z3) / D;
            r.n1 = ((Z5 * -2.0 - Z4) * T) / D;
            r.n2 = (Z5 * T2) / D;
            break;
        default:
            r.d0 = (Z6 + Z7 + 1.0) / D;
            r.d1 = ((Z6 + 2.0) * T) / D;
            r.n0 = (Z4 + Z5 + Z3) / D;
            r.n1 = ((Z3 * 2.0 + Z4) * T) / D;
            r.n2 = (Z3 * T2) / D;
            break;
        }
    }
    *s = r;
    return Outcome::Done;
}

} // namespace filtertransforms
