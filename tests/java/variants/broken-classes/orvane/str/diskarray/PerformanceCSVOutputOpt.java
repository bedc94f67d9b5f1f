package orvane.str.diskarray;

public class PerformanceCSVOutputOpt {
    public int port;
    public int rg;
    public int lu;
    public int cache;
    public int cache2;
    public int backend;
    public int drive;
    public int processor;
    public int drive_opr_rate;
    public int luex;
    public int cachepartition;
    public int vu_port;
}
