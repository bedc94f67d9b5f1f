package orvane.str.diskarray;

public class StatisticalHostSpc {
    public StatisticalHostSpc_Info[] port;
}
