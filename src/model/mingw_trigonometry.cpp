// Only in builds with MinGW, whose sine and cosine are the instructions of the old floating-point
// unit. Those take pi to 66 bits, so that the cosine of 90 degrees, 6.12323e-17 everywhere else,
// comes out as 6.12303e-17. The definitions here go before MinGW's and call those of Windows.
#include <cmath>

extern "C" {

// Where the linker finds the functions of the system's C library.
extern double (*__imp_sin)(double);
extern double (*__imp_cos)(double);

double sin(double rad) { return __imp_sin(rad); }

double cos(double rad) { return __imp_cos(rad); }

// What the compiler makes of a sine and a cosine of the same angle.
void sincos(double rad, double* sine, double* cosine) {
  *sine = __imp_sin(rad);
  *cosine = __imp_cos(rad);
}

}  // extern "C"
