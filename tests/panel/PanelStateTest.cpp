#include "PanelScene.h"
