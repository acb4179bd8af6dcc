// The table of all screens: the only place that binds names to classes.
#include "screentable.h"

#include "frmAendGeraet.h"
#include "frmAendKund.h"
#include "frmAendRez.h"
#include "frmDesktop.h"
#include "frmEinlaufen.h"
#include "frmGeraet.h"
#include "frmInterface.h"
#include "frmKunden.h"
#include "frmLoeschGeraet.h"
#include "frmLoeschKunde.h"
#include "frmLogin.h"
#include "frmMeldung.h"
#include "frmMeldung1.h"
#include "frmMessen.h"
#include "frmMotorDrehR.h"
#include "frmNachStatNPK.h"
#include "frmNeuGeraet.h"
#include "frmNeuKunde.h"
#include "frmNeuRezept.h"
#include "frmProtokollNr.h"
#include "frmProtokollNr_1.h"
#include "frmRezeptKopie.h"
#include "frmRezepte.h"
#include "frmSplash.h"
#include "frmStatMessen.h"
#include "frmToleranzen.h"
#include "frmVorStatNPK.h"

void bindScreens() {
    bindScreen<frmSplash>();
    bindScreen<frmLogin>();
    bindScreen<frmDesktop>();
    bindScreen<frmMotorDrehR>();
    bindScreen<frmMeldung1>();
    bindScreen<frmInterface>();
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
    bindScreen<frmProtokollNr>();
    bindScreen<frmProtokollNr_1>();
}
