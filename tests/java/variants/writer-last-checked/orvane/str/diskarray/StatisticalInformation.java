package orvane.str.diskarray;

/** Lacks drive_err, the last field whose failure drops the object. */
public class StatisticalInformation {
    public int unite_option;
    public StatisticalController[] controller;
    public StatisticalHostCommand[] h_command;
    public StatisticalHostCommand[] h_command_unite;
    public StatisticalCommandStatus[] com_status;
    public StatisticalCommandStatus[] com_status_unite;
    public StatisticalCache[] cache;
    public StatisticalWriteAfter[] writeafter;
    public StatisticalDriveRestoration[] drive_rest;
    public StatisticalCacheMemory[] cache_mem;
    public StatisticalDrive[] drive;
    public StatisticalHostSpc[] h_spc;
    public StatisticalDriveSpc[] d_spc;
    public StatisticalDriveFpc[] d_fpc;
    public StatisticalDriveDma[] d_dma;
    public StatisticalHostDma[] h_dma;
    public StatisticalHontai[] hontai;
    public StatisticalShuuhen[] shuuhen;
    public StatisticalDual[] dual;
    public StatisticalFibre[] fibre;
    public StatisticalUnit[] unit;
    public StatisticalDriveError[] drive_err_absent;
}
