// The table of all screens: the only place that binds names to classes.
#include "app/screentable.h"

#include "app/frmDesktop.h"
#include "app/frmLogin.h"
#include "app/frmMeldung1.h"
#include "app/frmMotorDrehR.h"
#include "app/frmRefresh.h"
#include "app/frmSplash.h"
#include "app/frmUeber.h"
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
    bindScreen<frmSplash>("frmSplash");
    bindScreen<frmLogin>("frmLogin");
    bindScreen<frmDesktop>("frmDesktop");
    bindScreen<frmMotorDrehR>("frmMotorDrehR");
    bindScreen<frmMeldung1>("frmMeldung1");
    bindScreen<frmRefresh>("frmRefresh");
    bindScreen<frmInterface>("frmInterface");
    bindScreen<frmSecondInterface>("frmSecondInterface");
    bindScreen<frmEinlaufen>("frmEinlaufen");
    bindScreen<frmKunden>("frmKunden");
    bindScreen<frmNeuKunde>("frmNeuKunde");
    bindScreen<frmÄndKund>("frmÄndKund");
    bindScreen<frmLöschKunde>("frmLöschKunde");
    bindScreen<frmGerät>("frmGerät");
    bindScreen<frmNeuGerät>("frmNeuGerät");
    bindScreen<frmÄndGerät>("frmÄndGerät");
    bindScreen<frmLöschGerät>("frmLöschGerät");
    bindScreen<frmRezepte>("frmRezepte");
    bindScreen<frmNeuRezept>("frmNeuRezept");
    bindScreen<frmRezeptKopie>("frmRezeptKopie");
    bindScreen<frmÄndRez>("frmÄndRez");
    bindScreen<frmToleranzen>("frmToleranzen");
    bindScreen<frmStatMessen>("frmStatMessen");
    bindScreen<frmVorStatNPK>("frmVorStatNPK");
    bindScreen<frmNachStatNPK>("frmNachStatNPK");
    bindScreen<frmMessen>("frmMessen");
    bindScreen<frmMeldung>("frmMeldung");
    bindScreen<frmGraphLite>("frmGraphLite");
    bindScreen<frmSetScale>("frmSetScale");
    bindScreen<frmKalibrierung>("frmKalibrierung");
    bindScreen<frmOberfl>("frmOberfl");
    bindScreen<frmMomentKal>("frmMomentKal");
    bindScreen<frmProtokollNr>("frmProtokollNr");
    bindScreen<frmProtokollNr_1>("frmProtokollNr_1");
    bindScreen<frmBericht>("frmBericht");
    bindScreen<frmBericht1>("frmBericht1");
    bindScreen<frmBerichtSichern>("frmBerichtSichern");
    bindScreen<frmPrinterPDF>("frmPrinterPDF");
    bindScreen<frmBlutdruckAbfrage>("frmBlutdruckAbfrage");
    bindScreen<frmBlutdruck>("frmBlutdruck");
    bindScreen<frmSecControl>("frmSecControl");
    bindScreen<frmSort>("frmSort");
    bindScreen<frmDeleteExtended>("frmDeleteExtended");
    bindScreen<frmNachweis>("frmNachweis");
    bindScreen<frmHistory>("frmHistory");
    bindScreen<frmEPListe>("frmEPListe");
    bindScreen<frmTest>("frmTest");
    bindScreen<frmEPRezepte>("frmEPRezepte");
    bindScreen<frmEPNeuRezept>("frmEPNeuRezept");
    bindScreen<frmEPÄndRez>("frmEPÄndRez");
    bindScreen<frmEndprüf>("frmEndprüf");
    bindScreen<frmÜber>("frmÜber");
}
