// The table of all screens: the only place that binds names to classes.
#include "app/screentable.h"

#include "app/frmDesktop.h"
#include "app/frmLogin.h"
#include "app/frmMeldung1.h"
#include "app/frmMotorDrehR.h"
#include "app/frmRefresh.h"
#include "app/frmSplash.h"
#include "calibration/frmHistory.h"
#include "calibration/frmKalibrierung.h"
#include "calibration/frmMomentKal.h"
#include "calibration/frmOberfl.h"
#include "finaltest/frmEPAendRez.h"
#include "finaltest/frmEPListe.h"
#include "finaltest/frmEPNeuRezept.h"
#include "finaltest/frmEPRezepte.h"
#include "finaltest/frmEndpruef.h"
#include "finaltest/frmTest.h"
#include "link/frmEinlaufen.h"
#include "link/frmInterface.h"
#include "link/frmSecondInterface.h"
#include "masterdata/frmAendGeraet.h"
#include "masterdata/frmAendKund.h"
#include "masterdata/frmAendRez.h"
#include "masterdata/frmGeraet.h"
#include "masterdata/frmKunden.h"
#include "masterdata/frmLoeschGeraet.h"
#include "masterdata/frmLoeschKunde.h"
#include "masterdata/frmNeuGeraet.h"
#include "masterdata/frmNeuKunde.h"
#include "masterdata/frmNeuRezept.h"
#include "masterdata/frmRezeptKopie.h"
#include "masterdata/frmRezepte.h"
#include "masterdata/frmToleranzen.h"
#include "measure/frmGraphLite.h"
#include "measure/frmMeldung.h"
#include "measure/frmMessen.h"
#include "measure/frmNachStatNPK.h"
#include "measure/frmSetScale.h"
#include "measure/frmStatMessen.h"
#include "measure/frmVorStatNPK.h"
#include "protocols/frmBericht.h"
#include "protocols/frmBericht1.h"
#include "protocols/frmBerichtSichern.h"
#include "protocols/frmBlutdruck.h"
#include "protocols/frmBlutdruckAbfrage.h"
#include "protocols/frmPrinterPDF.h"
#include "protocols/frmProtokollNr.h"
#include "protocols/frmProtokollNr_1.h"
#include "protocols/frmSecControl.h"
#include "recall/frmDeleteExtended.h"
#include "recall/frmNachweis.h"
#include "recall/frmSort.h"

void bindScreens() {
    bindScreen<frmSplash>();
    bindScreen<frmLogin>();
    bindScreen<frmDesktop>();
    bindScreen<frmMotorDrehR>();
    bindScreen<frmMeldung1>();
    bindScreen<frmRefresh>();
    bindScreen<frmInterface>();
    bindScreen<frmSecondInterface>();
    bindScreen<frmEinlaufen>();
    bindScreen<frmKunden>();
    bindScreen<frmNeuKunde>();
    bindScreen<frmÄndKund>();
    bindScreen<frmLöschKunde>();
    bindScreen<frmGerät>();
    bindScreen<frmNeuGerät>();
    bindScreen<frmÄndGerät>();
    bindScreen<frmLöschGerät>();
    bindScreen<frmRezepte>();
    bindScreen<frmNeuRezept>();
    bindScreen<frmRezeptKopie>();
    bindScreen<frmÄndRez>();
    bindScreen<frmToleranzen>();
    bindScreen<frmStatMessen>();
    bindScreen<frmVorStatNPK>();
    bindScreen<frmNachStatNPK>();
    bindScreen<frmMessen>();
    bindScreen<frmMeldung>();
    bindScreen<frmGraphLite>();
    bindScreen<frmSetScale>();
    bindScreen<frmKalibrierung>();
    bindScreen<frmOberfl>();
    bindScreen<frmMomentKal>();
    bindScreen<frmProtokollNr>();
    bindScreen<frmProtokollNr_1>();
    bindScreen<frmBericht>();
    bindScreen<frmBericht1>();
    bindScreen<frmBerichtSichern>();
    bindScreen<frmPrinterPDF>();
    bindScreen<frmBlutdruckAbfrage>();
    bindScreen<frmBlutdruck>();
    bindScreen<frmSecControl>();
    bindScreen<frmSort>();
    bindScreen<frmDeleteExtended>();
    bindScreen<frmNachweis>();
    bindScreen<frmHistory>();
    bindScreen<frmEPListe>();
    bindScreen<frmTest>();
    bindScreen<frmEPRezepte>();
    bindScreen<frmEPNeuRezept>();
    bindScreen<frmEPÄndRez>();
    bindScreen<frmEndprüf>();
}
