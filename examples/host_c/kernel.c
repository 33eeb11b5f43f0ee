/* An example statistics kernel (kernkvs.dll) for the example host.
 *
 * The package's real kernel owns the data file in use; this one pretends to
 * hold a file of five variables so that the example host and kvs_dlg.dll can
 * run without it. It exports every function kvs_dlg.dll may import from the
 * kernel (host/kernkvs.def), with the contracts of kvs_imports.h. */
#include <stdlib.h>
#include <string.h>

#include "kvs_imports.h"

static const char* const kVariables[] = {"AGE", "INCOME", "EDUC", "STATE$", "WEIGHT"};
enum { kVariableCount = 5, kNameWidth = 12 };

/* Blocks carry their element count and size in front of the caller's part,
 * so a growth knows how much of the new part to zero-fill. */
typedef struct BlockHeader {
    size_t bytes;
    size_t pad; /* keeps the caller's part 16-byte aligned on 64-bit */
} BlockHeader;

void* KVS_CALL reallocate_mem_ex(void** block, int32_t count, int32_t elementSize, int32_t tag) {
    BlockHeader* old;
    BlockHeader* grown;
    size_t bytes;
    (void)tag;
    if (!block) return NULL;
    if (count <= 0 || elementSize <= 0) { /* nothing to hold: release */
        free_mem_ex(block);
        return NULL;
    }
    if ((size_t)count > ((size_t)-1 - sizeof(BlockHeader)) / (size_t)elementSize) {
        free_mem_ex(block); /* on failure the old block is the kernel's to release */
        return NULL;
    }
    bytes = (size_t)count * (size_t)elementSize;
    old = *block ? (BlockHeader*)*block - 1 : NULL;
    grown = (BlockHeader*)realloc(old, sizeof(BlockHeader) + bytes);
    if (!grown) {
        free(old);
        *block = NULL;
        return NULL;
    }
    if (!old) grown->bytes = 0;
    if (bytes > grown->bytes) memset((char*)(grown + 1) + grown->bytes, 0, bytes - grown->bytes);
    grown->bytes = bytes;
    *block = grown + 1;
    return *block;
}

void KVS_CALL free_mem_ex(void** block) {
    if (!block || !*block) return;
    free((BlockHeader*)*block - 1);
    *block = NULL;
}

int32_t KVS_CALL kvs_strlen_ex(const char* text) { return text ? (int32_t)strlen(text) : 0; }

int32_t KVS_CALL INQFMV_EX(void) { return kVariableCount; }
int32_t KVS_CALL INQFML_EX(void) { return kNameWidth; }
int32_t KVS_CALL INQKS_EX(void) { return 0; }

int32_t KVS_CALL INQVARNAME_EX(int32_t varNumber, char* field, int32_t fieldWidth) {
    size_t length;
    if (!field || fieldWidth <= 0 || varNumber < 1 || varNumber > kVariableCount) return 0;
    length = strlen(kVariables[varNumber - 1]);
    if (length > (size_t)fieldWidth) length = (size_t)fieldWidth;
    memset(field, ' ', (size_t)fieldWidth);
    memcpy(field, kVariables[varNumber - 1], length);
    return 1;
}

int32_t KVS_CALL INQPRT_EX(void) { return 1; }

int32_t KVS_CALL DXNUM_EX(int32_t varNumber) {
    if (varNumber < 1 || varNumber > kVariableCount) return 0;
    return strchr(kVariables[varNumber - 1], '$') ? 0 : 1;
}

double KVS_CALL DMIS_EX(void) { return -1.0e36; }

int32_t KVS_CALL NBLANK_EX(const char* text, int32_t length) {
    if (!text) return 0;
    while (length > 0 && text[length - 1] == ' ') --length;
    return length;
}

/* Lower Cholesky factor of a row-major n x n matrix, in place. */
int32_t KVS_CALL choll(double* matrix, int32_t n) {
    int32_t i, j, k;
    if (!matrix || n <= 0) return 0;
    for (j = 0; j < n; ++j) {
        double diagonal = matrix[j * n + j];
        for (k = 0; k < j; ++k) diagonal -= matrix[j * n + k] * matrix[j * n + k];
        if (diagonal <= 0.0) return 0;
        /* Newton's square root keeps the example free of libm. */
        {
            double root = diagonal > 1.0 ? diagonal : 1.0;
            for (k = 0; k < 64; ++k) root = 0.5 * (root + diagonal / root);
            diagonal = root;
        }
        matrix[j * n + j] = diagonal;
        for (i = j + 1; i < n; ++i) {
            double sum = matrix[i * n + j];
            for (k = 0; k < j; ++k) sum -= matrix[i * n + k] * matrix[j * n + k];
            matrix[i * n + j] = sum / diagonal;
        }
    }
    return 1;
}

void KVS_CALL CancelSampling(int32_t job) { (void)job; }
