/* Control ids of the Design of Experiments dialog. */
#ifndef KVS_DESIGN_IDS_H
#define KVS_DESIGN_IDS_H

#include "common_ids.h"

/* The kind of design. */
#define IDC_DOE_FULL        31
#define IDC_DOE_FRACTIONAL  32
#define IDC_DOE_LATIN       33
#define IDC_DOE_PLACKETT    34
#define IDC_DOE_BOX         35
#define IDC_DOE_TAGUCHI     36
/* Its size: factors, levels, runs, replications, the Taguchi array. */
#define IDC_DOE_FACTORS     37
#define IDC_DOE_LEVELS      38
#define IDC_DOE_RUNS        39
#define IDC_DOE_REPS        40
#define IDC_DOE_ARRAY       41
/* How the runs are laid out. */
#define IDC_DOE_RANDOM      42
#define IDC_DOE_LETTERS     43
#define IDC_DOE_BLOCK       44
#define IDC_DOE_SQUARES     45

#endif
