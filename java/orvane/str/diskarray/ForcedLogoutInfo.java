package orvane.str.diskarray;

public class ForcedLogoutInfo {
    public String user_id;
}
