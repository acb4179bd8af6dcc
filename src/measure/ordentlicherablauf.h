// The flow of the operator: judges each step by the specification of the session, without and with
// regard to the uncertainty, and stores it in the protocol of the session.
#pragma once

class Messablauf;

Messablauf &ordentlicherAblauf();
