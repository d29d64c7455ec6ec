#pragma once
// The numeric primitives: harmonic sums, log factorials, tests on 2 x 2 tables, significance
// marks and their words, the Student t table, least squares, log gamma, the Jukes and Cantor
// distance, Poisson deviates and probabilities, and the uniform generator of the simulations.
// None of them keeps state of its own: tables and generator states belong to their callers.

#include "stats/chi_square.h"
#include "stats/chi_square_tail.h"
#include "stats/fisher_exact.h"
#include "stats/g_test.h"
#include "stats/harmonic.h"
#include "stats/jukes_cantor.h"
#include "stats/log_factorial.h"
#include "stats/log_gamma.h"
#include "stats/marks.h"
#include "stats/poisson.h"
#include "stats/random.h"
#include "stats/regression.h"
#include "stats/significance_words.h"
#include "stats/stats_error.h"
#include "stats/student_mark.h"
