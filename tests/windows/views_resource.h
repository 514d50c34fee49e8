#pragma once
// Identifiers of the resources in views.rc.

#define IDR_MAIN 500
#define IDR_CHILD 501
#define IDR_SINGLE 502

#define IDD_FORM 510
#define IDC_FORM_NAME 511
#define IDC_FORM_BUTTON 512

#define ID_TEST_ROUTED 33001
#define ID_TEST_LOST 33002
#define ID_TEST_CHECKED 33003
#define ID_TEST_GROWING 33004
#define ID_TEST_GROWN 33005
#define ID_TEST_KEY 33010
