/* Control ids of the save-as and import/export option dialogs. */
#ifndef KVS_OPTIONS_IDS_H
#define KVS_OPTIONS_IDS_H

#include "common_ids.h"

/* "SaveAsOpts": one radio button per kind of data file. */
#define IDC_SAVEAS_RECT         31
#define IDC_SAVEAS_SSCP         32
#define IDC_SAVEAS_COV          33
#define IDC_SAVEAS_CORR         34
#define IDC_SAVEAS_DISS         35
#define IDC_SAVEAS_SIM          36

/* "IDD_OPTIONSIMPORTEXPORT" */
#define IDC_IMPEXP_ALLCASES     31
#define IDC_IMPEXP_FIRSTCASE    32
#define IDC_IMPEXP_LASTCASE     33
#define IDC_IMPEXP_ALLCOLUMNS   35
#define IDC_IMPEXP_FIRSTCOLUMN  36
#define IDC_IMPEXP_LASTCOLUMN   37
#define IDC_IMPEXP_COLUMNGROUP  38
#define IDC_IMPEXP_FIRSTCASE_LABEL   39
#define IDC_IMPEXP_LASTCASE_LABEL    40
#define IDC_IMPEXP_FIRSTCOLUMN_LABEL 41
#define IDC_IMPEXP_LASTCOLUMN_LABEL  42
#define IDC_IMPEXP_CASEGROUP    43
#define IDC_IMPEXP_RANGEGROUP   44
#define IDC_IMPEXP_RANGE        45

#endif
