package orvane.str.diskarray;

public class KXAccountDelete {
    public String user_id;
}
