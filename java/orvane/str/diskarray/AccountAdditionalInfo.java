package orvane.str.diskarray;

public class AccountAdditionalInfo {
    public int keep_alive_time;
}
