package orvane.str.diskarray;

public class StatisticalDriveFpc {
    public StatisticalDriveFpc_Info[] fpc;
}
