//{{NO_DEPENDENCIES}}
// 由 Visual C++ 生成的包含文件。
#define IDR_MAINFRAME                   128
#define IDD_MIDDLE_DIALOG               102
#define IDS_GREETING                    103
#define IDR_BYTES                       104
#define IDC_CHOICES                     1000
