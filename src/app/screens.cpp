// The table of all screens: the only place that binds names to classes.
#include "screentable.h"

#include "frmDesktop.h"
#include "frmEinlaufen.h"
#include "frmGeraet.h"
#include "frmInterface.h"
#include "frmKunden.h"
#include "frmLogin.h"
#include "frmMeldung.h"
#include "frmMeldung1.h"
#include "frmMessen.h"
#include "frmMotorDrehR.h"
#include "frmNachStatNPK.h"
#include "frmProtokollNr.h"
#include "frmProtokollNr_1.h"
#include "frmRezepte.h"
#include "frmSplash.h"
#include "frmStatMessen.h"
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
    bindScreen<frmGerät>();
    bindScreen<frmRezepte>();
    bindScreen<frmStatMessen>();
    bindScreen<frmVorStatNPK>();
    bindScreen<frmNachStatNPK>();
    bindScreen<frmMessen>();
    bindScreen<frmMeldung>();
    bindScreen<frmProtokollNr>();
    bindScreen<frmProtokollNr_1>();
}
