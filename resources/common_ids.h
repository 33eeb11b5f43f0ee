/* Control ids shared by every variable dialog template. */
#ifndef KVS_COMMON_IDS_H
#define KVS_COMMON_IDS_H

#define IDC_SOURCE          4
#define IDC_SOURCE2         5
#define IDC_ADD1            6
#define IDC_REMOVE1         7
#define IDC_ADD2            8
#define IDC_REMOVE2         9
#define IDC_TARGET1         10
#define IDC_TARGET2         11
#define IDC_ONE_VARIABLE    239 /* target list that holds one variable */
#define IDC_HELPBUTTON            12
#define IDC_RESETALL        13
#define IDC_ADD5            51
#define IDC_REMOVE5         52
#define IDC_TARGET5         53
#define IDC_REMOVE3         248
#define IDC_REMOVE4         249
#define IDC_ADD4            250
#define IDC_ADD3            251
#define IDC_TARGET3         252
#define IDC_TARGET4         253
#define IDC_CONTINUE        1001
#define IDC_SAVEFILE        99
/* The model dialogs' "Dependent:" list and its Add and Remove buttons. */
#define IDC_DEPENDENT       240
#define IDC_ADD_DEPENDENT   241
#define IDC_REMOVE_DEPENDENT 242
/* A one-variable list of the statistics dialogs and its buttons. */
#define IDC_ADD_VARIABLE     243
#define IDC_REMOVE_VARIABLE  244
#define IDC_VARIABLE_LIST    245

/* Reordering a target list whose order matters. */
#define IDC_MOVE_UP          966
#define IDC_MOVE_DOWN        967
/* Controls the library adds to every variable dialog when it opens: the
   command preview with its Copy button, and a search box under each source
   list with its label. */
#define IDC_COMMAND_PREVIEW  960
#define IDC_COPY_COMMANDS    961
#define IDC_COMMAND_PREVIEW_LABEL 968
#define IDC_SOURCE_FILTER    962
#define IDC_SOURCE2_FILTER   963
#define IDC_SOURCE_FILTER_LABEL  964
#define IDC_SOURCE2_FILTER_LABEL 965

/* System commands the dialogs answer with help. */
#define IDM_HELP_CONTENTS   801
#define IDM_HELP_SEARCH     802
#define IDM_HELP_ON_HELP    803
#define IDM_HELP_CONTEXT    804

#endif
