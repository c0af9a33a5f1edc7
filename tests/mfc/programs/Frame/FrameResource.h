// What the frame program and its test have in common.
#define IDR_FRAME 200
#define ID_FRAME_COUNT 32771
#define ID_FRAME_QUIT 32772
#define IDS_IDLE 300
#define WM_FRAME_IDLE_CALLS 0x8001 // Answered with the number of idle calls until now.
