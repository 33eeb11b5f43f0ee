#include "core/file_filters.h"

namespace kvs {

namespace {

constexpr const char* kData = "Korvan Files (*.kvd,*.kvs)|*.kvd;*.kvs|All Files (*.*)|*.*|";
constexpr const char* kOutput = "Output Files(*.dat)|*.txt|All Files (*.*)|*.*|";
constexpr const char* kPicture = "Bitmaps(*.bmp)|*.bmp|Metafiles(*.wmf)|*.wmf|All Files(*.*)|*.*|";
constexpr const char* kGraphExport =
    "Korgraph Files (*.kvg)|*.kvg|EPS (*.eps)|*.eps|JPEG (*.jpg)|*.jpg|Mac PICT (*.pct)|*.pct|CGM (*.cgm)|*.cgm|"
    "Bitmap (*.bmp)|*.bmp|Metafile (*.wmf)|*.wmf|Any File (*.*)|*.*|";
constexpr const char* kCommand = "Command (*.kvc,*.cmd)|*.kvc;*.cmd|TRAX Classic (*.inp)|*.inp|All Files (*.*)|*.*|";

constexpr const char* kSpreadsheet = "Lotus1 Files (*.wks)|*.wks|Lotus2 Files (*.wk1)|*.wk1|";
constexpr const char* kOtherData = "TRAX Data(TXT)(*.por)|*.por|TRAX Data(BIN)(*.sav)|*.sav|";
constexpr const char* kOtherCommand = "TRAX Classic (*.inp)|*.inp|";
constexpr const char* kTailA =
    "Symphony 1.0 (*.wrk)|*.wrk|Symphony 1.1 (*.wr1)|*.wr1|ASCII Text (*.txt)|*.txt|VELM Files (*.sav)|*.sav|"
    "All Files (*.*)|*.*|";
constexpr const char* kTailB =
    "Symphony 1.0 (*.wrk)|*.wrk|Symphony 1.1 (*.wr1)|*.wr1|ASCII Data (*.txt)|*.txt|All Files (*.*)|*.*|";

constexpr const char* kAllTypesStart =
    "Korvan Files (*.kvd,*.kvs)|*.kvd;*.kvs|Korvan Output (*.dat)|*.dat|Korgraph Files (*.kvg)|*.kvg|"
    "Command (*.kvc,*.cmd)|*.kvc;*.cmd|Excel Files (*.xls)|*.xls|DIF Files (*.dif)|*.dif|DBase Files (*.dbf)|*.dbf|";
constexpr const char* kOutputFirstStart =
    "Korvan Output (*.dat)|*.dat|Korvan Files (*.kvd,*.kvs)|*.kvd;*.kvs|Korgraph Files (*.kvg)|*.kvg|"
    "Command (*.kvc,*.cmd)|*.kvc;*.cmd|Excel Files (*.xls)|*.xls|DIF Files (*.dif)|*.dif|DBase Files (*.dbf)|*.dbf|";
constexpr const char* kGraphFirstStart =
    "Korgraph Files (*.kvg)|*.kvg|Korvan Files (*.kvd,*.kvs)|*.kvd;*.kvs|Korvan Output(*.txt)|*.txt|"
    "Command (*.kvc,*.cmd)|*.kvc;*.cmd|Excel Files (*.xls)|*.xls|DIF Files (*.dif)|*.dif|DBase Files (*.dbf)|*.dbf|";
constexpr const char* kCommandFirstStart =
    "Command (*.kvc,*.cmd)|*.kvc;*.cmd|Korvan Files (*.kvd,*.kvs)|*.kvd;*.kvs|Korvan Output(*.dat)|*.dat|"
    "Korgraph Files (*.kvg)|*.kvg|Excel Files (*.xls)|*.xls|DIF Files (*.dif)|*.dif|DBase Files (*.dbf)|*.dbf|";
constexpr const char* kImportStart =
    "Korvan Files (*.kvd,*.kvs)|*.kvd;*.kvs|Excel Files (*.xls)|*.xls|DIF Files (*.dif)|*.dif|"
    "DBase Files (*.dbf)|*.dbf|Lotus1 Files (*.wks)|*.wks|Lotus2 Files (*.wk1)|*.wk1|";

FileFilters& filters() {
    static FileFilters all;
    return all;
}

}  // namespace

const FileFilters& fileFilters() { return filters(); }

void prepareFileFilters() {
    FileFilters& f = filters();
    f.data = kData;
    f.output = kOutput;
    f.picture = kPicture;
    f.graphExport = kGraphExport;
    f.command = kCommand;
    f.dataOnly = kData;
    f.allTypes = std::string(kAllTypesStart) + kSpreadsheet + kOtherData + kTailA;
    f.outputFirst = std::string(kOutputFirstStart) + kSpreadsheet + kTailA;
    f.graphFirst = std::string(kGraphFirstStart) + kSpreadsheet + kTailA;
    f.commandFirst = std::string(kCommandFirstStart) + kSpreadsheet + kOtherCommand + kTailA;
    f.import = std::string(kImportStart) + kOtherData + kTailB;
}

std::string nulSeparated(const std::string& filter) {
    std::string out = filter;
    for (char& c : out)
        if (c == '|') c = '\0';
    out.push_back('\0');
    return out;
}

}  // namespace kvs
