/* Control ids of the graph dialogs and their option sub-dialogs. The lists of
 * a graph dialog go by role: X in target list 1, Y in 2, Z in 3 and the
 * grouping variables in 4 (common_ids.h). */
#ifndef KVS_GRAPH_IDS_H
#define KVS_GRAPH_IDS_H

#include "common_ids.h"

/* Check boxes, drop-down lists and fields of the graph dialogs. */
#define IDC_GRAPH_REPEAT        401
#define IDC_GRAPH_MATRIX        402
#define IDC_GRAPH_MIRROR        403
#define IDC_GRAPH_OVERLAY       404
#define IDC_GRAPH_COUNTS        405
#define IDC_GRAPH_STACK         406
#define IDC_GRAPH_RANGE         407
#define IDC_GRAPH_HALF          408
#define IDC_GRAPH_RING          410
#define IDC_GRAPH_THREED        411
#define IDC_GRAPH_PSCALE        412
#define IDC_GRAPH_SPHERE        413
#define IDC_GRAPH_DISPLAY       420 /* "Display as:" */
#define IDC_GRAPH_KIND          421 /* icon kind, density kind, dot style, projection, distribution */
#define IDC_GRAPH_WLINE         422 /* the W-variables of triangular coordinates */
#define IDC_GRAPH_SLICES        423
#define IDC_GRAPH_PARAM1        424
#define IDC_GRAPH_PARAM2        425

/* The function plot. */
#define IDC_FPLOT_FUNCTIONS     15
#define IDC_FPLOT_OPERATORS     16
#define IDC_FPLOT_INSERT_FUNCTION 17
#define IDC_FPLOT_INSERT_OPERATOR 18
#define IDC_FPLOT_LEFT          117
#define IDC_FPLOT_EQUATION      118
#define IDC_FPLOT_2D            430
#define IDC_FPLOT_3D            431

/* The option buttons. */
#define IDC_OPT_OPTIONS         501
#define IDC_OPT_AXES            502
#define IDC_OPT_APPEARANCE      503
#define IDC_OPT_LAYOUT          504
#define IDC_OPT_HILO            505
#define IDC_OPT_BAR             506
#define IDC_OPT_COMMON_AXES     507
#define IDC_OPT_DOT             508
#define IDC_OPT_LINE            509
#define IDC_OPT_PROFILE         510
#define IDC_OPT_PYRAMID         511
#define IDC_OPT_LINE_APPEARANCE 512
#define IDC_OPT_SPLOM           513
#define IDC_OPT_2D_AXES         514
#define IDC_OPT_HISTOGRAM       515
#define IDC_OPT_BOX             516
#define IDC_OPT_DENSITY         517
#define IDC_OPT_FOURIER         518
#define IDC_OPT_SLICE_LABEL     519
#define IDC_OPT_PPLOT           520
#define IDC_OPT_QPLOT           521
#define IDC_OPT_ICON            522
#define IDC_OPT_TRANS_AXES      523
#define IDC_OPT_COORDINATES     527
#define IDC_OPT_PIE_SCALE       528
#define IDC_OPT_LAYOUT_ONLY     529
#define IDC_OPT_BAR_APPEARANCE  530

/* Every option sub-dialog. */
#define IDC_OPT_RESET           3
#define IDC_OPT_HELP            12

/* Axis (X, Y, Z, W). */
#define IDC_AXIS_LABEL          20
#define IDC_AXIS_MAX            21
#define IDC_AXIS_MIN            22
#define IDC_AXIS_UPPER          23
#define IDC_AXIS_LOWER          24
#define IDC_AXIS_TICK           25
#define IDC_AXIS_PIP            26
#define IDC_AXIS_POWER          27
#define IDC_AXIS_LOGBASE        28
#define IDC_AXIS_DECIMALS       29
#define IDC_AXIS_GRID           30
#define IDC_AXIS_REVERSE        31
#define IDC_AXIS_NONE           38
#define IDC_AXIS_POW            39
#define IDC_AXIS_LOG            40

/* All Axes. */
#define IDC_ALLAXES_AXES2D      60
#define IDC_ALLAXES_SCALES2D    61
#define IDC_ALLAXES_AXES3D      62
#define IDC_ALLAXES_SCALES3D    63
#define IDC_ALLAXES_INSIDE      64
#define IDC_ALLAXES_OUTSIDE     65
#define IDC_ALLAXES_THROUGH     66
#define IDC_ALLAXES_FLUSH       67
#define IDC_ALLAXES_INDENT      68
#define IDC_ALLAXES_FLOAT       69
#define IDC_ALLAXES_TRANSPOSE   70

/* Graph Layout. */
#define IDC_LAYOUT_HEIGHT       71
#define IDC_LAYOUT_WIDTH        72
#define IDC_LAYOUT_ALTITUDE     73
#define IDC_LAYOUT_LOCX         74
#define IDC_LAYOUT_LOCY         75
#define IDC_LAYOUT_ROW          76
#define IDC_LAYOUT_COL          77
#define IDC_LAYOUT_TITLE        78
#define IDC_LAYOUT_SLOPE        79

/* Color and Fill: colour values 34 to 38, fill patterns 41 to 43. */
#define IDC_COLOR_1             34
#define IDC_COLOR_2             35
#define IDC_COLOR_3             36
#define IDC_COLOR_AXES          37
#define IDC_COLOR_FRAME         38
#define IDC_FILL_1              41
#define IDC_FILL_2              42
#define IDC_FILL_3              43
#define IDC_PICK_COLOR_1        134
#define IDC_PICK_COLOR_2        135
#define IDC_PICK_COLOR_3        136
#define IDC_PICK_COLOR_AXES     137
#define IDC_PICK_COLOR_FRAME    138

/* Symbol and Label. */
#define IDC_SYMBOL_PICTURES     80
#define IDC_SYMBOL_CHARACTER    81
#define IDC_SYMBOL_1            82
#define IDC_SYMBOL_2            83
#define IDC_SYMBOL_3            84
#define IDC_SYMBOL_TEXT         85
#define IDC_SYMBOL_SIZE1        86
#define IDC_SYMBOL_SIZE2        87
#define IDC_SYMBOL_SIZE3        88
#define IDC_SYMBOL_LABEL        89
#define IDC_SYMBOL_CSIZE        90

/* Surface and Line Style. */
#define IDC_LINE_SURFACE        91
#define IDC_LINE_CUT            92
#define IDC_LINE_DASH1          93
#define IDC_LINE_DASH2          94
#define IDC_LINE_DASH3          95

/* Legend. */
#define IDC_LEGEND_NONE         100
#define IDC_LEGEND_X            101
#define IDC_LEGEND_Y            102
#define IDC_LEGEND_TITLE        103
#define IDC_LEGEND_LABELS       104

/* Plot Options (and Scatterplot Matrix Options). */
#define IDC_PLOT_DENSITY        140
#define IDC_PLOT_BORDER         141
#define IDC_PLOT_HULL           142
#define IDC_PLOT_KERNEL         143
#define IDC_PLOT_INFLUENCE      144
#define IDC_PLOT_ELL            145
#define IDC_PLOT_ELM            146
#define IDC_PLOT_JITTER         147
#define IDC_PLOT_FLOWER         148
#define IDC_PLOT_LINE           149
#define IDC_PLOT_TSP            150
#define IDC_PLOT_SPAN           151
#define IDC_PLOT_DELAUNEY       152
#define IDC_PLOT_VORONOI        153
#define IDC_PLOT_SPIKE          154
#define IDC_PLOT_VECTOR         155

/* Smoother and Residuals. */
#define IDC_SMOOTH_METHOD       160
#define IDC_SMOOTH_RATIO        161
#define IDC_SMOOTH_ORDER        162
#define IDC_SMOOTH_ANGLE        163
#define IDC_SMOOTH_NOWEIGHT     164
#define IDC_SMOOTH_ANDREWS      165
#define IDC_SMOOTH_BISQUARE     166
#define IDC_SMOOTH_HUBER        167
#define IDC_SMOOTH_TRIMMED      168
#define IDC_SMOOTH_CONFI        169
#define IDC_SMOOTH_TENSION      170
#define IDC_SMOOTH_SHORT        171

/* Coordinates (the scatterplot's with its W-variables, and the common one). */
#define IDC_COORD_RECT          172
#define IDC_COORD_POLAR         173
#define IDC_COORD_SPHERE        174
#define IDC_COORD_TRI           175
#define IDC_COORD_PROJECTION    176

/* Error Bars. */
#define IDC_ERROR_NONE          177
#define IDC_ERROR_SD            178
#define IDC_ERROR_SE            179
#define IDC_ERROR_MULTIPLE      180
#define IDC_ERROR_DIRECTION     181
#define IDC_ERROR_THICKNESS     182
#define IDC_ERROR_BOX           183

/* Bar, Pyramid, Dot, Line and Profile Options. */
#define IDC_BAROPT_PERCENT      184
#define IDC_BAROPT_THREED       185
#define IDC_BAROPT_BASE         186
#define IDC_BAROPT_THICKNESS    187
#define IDC_BAROPT_LINE         188

/* Bar, Slice and Pyramid Label; Case Labels. */
#define IDC_LABEL_CSIZE         189
#define IDC_LABEL_VALUES        190
#define IDC_GRAPH_LABEL_TEXT          191

/* Histogram Options; Box Plot Options. */
#define IDC_HIST_CUM            192
#define IDC_HIST_BARS           193
#define IDC_HIST_BWIDTH         194
#define IDC_HIST_TENSION        195
#define IDC_BOX_NOTCH           196

/* Pie Chart Scale. */
#define IDC_PIE_LINEAR          197
#define IDC_PIE_NOSCALE         198
#define IDC_PIE_POWER           199
#define IDC_PIE_LOG             200
#define IDC_PIE_POWER_VALUE     201
#define IDC_PIE_LOG_VALUE       202

/* Icon Location: two one-name lists filled from the source list. */
#define IDC_ILOC_ADD_X          235
#define IDC_ILOC_ADD_Y          236
#define IDC_ILOC_REMOVE_X       237
#define IDC_ILOC_REMOVE_Y       238
#define IDC_ILOC_X              239
#define IDC_ILOC_Y              240

#endif
