// Clock.h : whether the clock of the system runs

#ifdef __cplusplus
extern "C"
#endif
int ClockRuns(void);
