package orvane.str.diskarray;

public class PerformanceCollectGraphVUBase {
    public int valid;
    public int command_iorate;
    public int command_transrate;
    public int command_time_h;
    public int command_time_l;
    public int command_max_time_h;
}
